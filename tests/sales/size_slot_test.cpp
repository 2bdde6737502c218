// The size slot a product code names: "01" to "50", nothing else.
#include <gtest/gtest.h>

#include "sales/size_fields.h"

namespace mz::sales {
namespace {

struct SlotCase {
  const char* code;
  size_t at;
  int slot;
};

TEST(SalesSizeSlot, NamesOnlyTheFiftySlots) {
  const SlotCase cases[] = {
      {"000101", 5, 1},  {"000150", 5, 50}, {"000151", 5, 0},  {"000100", 5, 0},
      {"0001", 5, 0},    {"00011", 5, 0},   {"0001A1", 5, 0},  {"0001 1", 5, 0},
      {">001203-CAMISA POLO", 6, 3},        {">001250-SAIA", 6, 50}, {">0012-", 6, 0},
  };
  for (const SlotCase& c : cases) EXPECT_EQ(size_slot(c.code, c.at), c.slot) << c.code;
}

}  // namespace
}  // namespace mz::sales
