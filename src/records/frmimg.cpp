// FrmImg: the product's photo, larger. It looks for the file named in the
// card's E4 in the data folder itself, not in Fotos where the photos are
// copied, so a photo that lies only in Fotos shows blank here.
#include <algorithm>
#include <filesystem>
#include <memory>

#include "records/screens.h"
#include "store/database.h"

namespace mz::records {

std::unique_ptr<ui::Form> make_frmimg(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "FrmImg", "Foto");
  ui::Form& f = *form;
  f.add("Image1", ui::ControlKind::Image).picture_size = 520;
  f.add("Command1", ui::ControlKind::Button, "&Volta").on_click = [&rt] { rt.close("FrmImg"); };
  f.on_load = [&rt, &f] {
    rt.centre(f);
    std::string name = rt.screen("PRODUTO")["E4"].text();
    std::replace(name.begin(), name.end(), '\\', '/');
    const std::filesystem::path photo = store::Workspace::folder().string() + "/" + name;
    std::error_code ec;
    if (std::filesystem::is_regular_file(photo, ec)) f["Image1"].set_text(photo.string());
  };
  return form;
}

}  // namespace mz::records
