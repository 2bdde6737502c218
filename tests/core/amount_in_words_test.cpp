#include "core/amount_in_words.h"

#include <gtest/gtest.h>

#include "core/format.h"

namespace mz {
namespace {

TEST(CoreAmountInWords, PhrasesKeepTheOldForms) {
  struct Case {
    const char* amount;
    const char* words;
  };
  const std::vector<Case> cases = {
      {"1,00", "Hum real."},
      {"2,50", "Dois reais e cinquenta centavos."},
      {"1,01", "Hum real e um centavo."},
      {",50", " e cinquenta centavos."},
      {"21,00", "Vinte e um reais."},
      {"101,00", "Cento e um reais."},
      {"100,00", "Cem reais."},
      {"315,00", "Trezentos e quinze reais."},
      {"120,00", "Cento e vinte reais."},
      {"1100,00", "Hum mil,cem reais."},
      {"1234,56", "Hum mil,duzentos e trinta e quatro reais e cinquenta e seis centavos."},
      {"1000,00", "Hum mil, reais."},
      {"2000,10", "Dois mil, reais e dez centavos."},
      {"1000000,00", "Hum milhão,mil, reais."},
      {"2500000,00", "Dois milhões,quinhentos mil, reais."},
      {"3,19", "Três reais e dezenove centavos."},
      {"0,00", " reais."},  // no words before the currency
      {"", ""},
      {",", " e centavos."},  // shorter than the format: the missing places read as 0
      {"5", " e cinquenta centavos."},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.amount);
    EXPECT_EQ(amount_in_words(c.amount), c.words);
  }
}

TEST(CoreAmountInWords, TakesWhatTheCallersFormat) {
  EXPECT_EQ(amount_in_words(format(Value(1234.56), "#########.00")),
            "Hum mil,duzentos e trinta e quatro reais e cinquenta e seis centavos.");
  EXPECT_EQ(amount_in_words(format(Value("0,5"), "#########.00")), " e cinquenta centavos.");
}

}  // namespace
}  // namespace mz
