// fotos: the picture of the product on VENDA, from the Fotos folder.
#include <filesystem>

#include "sales/venda/lookups.h"
#include "store/database.h"

namespace mz::sales::venda {

using ui::ControlKind;

std::unique_ptr<ui::Form> make_fotos(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "fotos", "Foto");
  ui::Form& f = *form;
  ui::Control& picture = f.add("Image1", ControlKind::Image);
  picture.picture_size = 400;
  f.add("Command1", ControlKind::Button, "&Fecha").on_click = [&rt] { rt.close("fotos"); };
  f.on_load = [&rt, &f] {
    rt.centre(f);
    const std::filesystem::path file = store::Workspace::folder() / "Fotos" / rt.screen("VENDA")["foto"].text();
    std::error_code ec;  // a picture that cannot be reached is simply not shown
    if (std::filesystem::is_regular_file(file, ec)) f["Image1"].set_text(file.string());
  };
  return form;
}

}  // namespace mz::sales::venda
