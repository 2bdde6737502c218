#include "records/produto/photo.h"

#include "store/database.h"

namespace mz::records::produto {

namespace fs = std::filesystem;

fs::path photo_folder() { return store::Workspace::folder() / "Fotos"; }

void pick_photo(ui::Runtime& rt, ui::Form& f) {
  std::error_code ec;  // this handler passes over every failure
  fs::create_directory(photo_folder(), ec);
  auto chosen = rt.host().choose_file("Localiza foto", "Imagens (*.jpg *.jpeg *.bmp *.gif *.png)");
  if (!chosen || chosen->empty()) return;
  const fs::path source(*chosen);
  const fs::path target = photo_folder() / source.filename();
  // A photo picked from Fotos itself is already in place.
  if (!fs::equivalent(source, target, ec)) {
    ec.clear();
    fs::copy_file(source, target, fs::copy_options::overwrite_existing, ec);
    if (ec) return;
  }
  f["IMG1"].set_text(source.string());
  f["E4"].set_text(source.filename().string());
}

}  // namespace mz::records::produto
