#pragma once
// The product photos: picked by the user and copied into the folder Fotos
// of the data folder, the file name kept in E4.
#include <filesystem>

#include "ui/runtime.h"

namespace mz::records::produto {

std::filesystem::path photo_folder();

// "Localiza foto": Fotos is made when missing, the file chosen is copied
// into it, IMG1 shows the picture and E4 takes its file name. A cancelled
// dialog or a copy that fails changes nothing and says nothing.
void pick_photo(ui::Runtime& rt, ui::Form& f);

}  // namespace mz::records::produto
