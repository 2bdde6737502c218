#include "print/barcode.h"

#include <zint.h>

#include <memory>

namespace mz::print {

std::string_view code39_data(std::string_view stored) {
  if (stored.starts_with('*')) stored.remove_prefix(1);
  if (stored.ends_with('*')) stored.remove_suffix(1);
  return stored;
}

std::vector<Bar> code39_bars(std::string_view stored) {
  const std::string_view data = code39_data(stored);
  std::unique_ptr<zint_symbol, decltype(&ZBarcode_Delete)> symbol(ZBarcode_Create(), ZBarcode_Delete);
  symbol->symbology = BARCODE_CODE39;
  symbol->show_hrt = 0;  // the label prints the code itself where it wants it
  symbol->output_options |= BARCODE_QUIET_ZONES;
  const auto* bytes = reinterpret_cast<const unsigned char*>(data.data());
  if (ZBarcode_Encode_and_Buffer_Vector(symbol.get(), bytes, static_cast<int>(data.size()), 0) >= ZINT_ERROR)
    return {};
  const zint_vector& vector = *symbol->vector;
  std::vector<Bar> bars;
  for (const zint_vector_rect* r = vector.rectangles; r; r = r->next)
    bars.push_back({r->x / vector.width, r->y / vector.height, r->width / vector.width, r->height / vector.height});
  return bars;
}

}  // namespace mz::print
