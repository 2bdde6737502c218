#include "print/barcode.h"

#include <zint.h>

#include <memory>

namespace mz::print {

std::vector<Bar> code39_bars(std::string_view data) {
  if (data.starts_with('*')) data.remove_prefix(1);
  if (data.ends_with('*')) data.remove_suffix(1);
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
