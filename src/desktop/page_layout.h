#pragma once
// How a screen's page is laid out from its places: fields with their
// captions, blocks and grids across the page's width, buttons at its foot,
// all within a 1366x768 display.
#include <vector>

class QGridLayout;
class QLayout;
class QVBoxLayout;
class QWidget;

namespace mz::desktop {

// Below this width a field beside others is no longer of use.
inline constexpr int kFieldWidthInRows = 150;

// One place on a page: a caption and its field, a lone widget, or a whole
// block that spans the page's width.
struct PagePlace {
  QWidget* caption = nullptr;
  QWidget* field = nullptr;
  QLayout* block = nullptr;
  bool wide = false;
  bool picture = false;  // an image: beside the fields, spanning their rows
};

// Runs of fields flow into as many columns as keep a column short, or across
// the page in rows on a page with a grid or a block; wide places take the
// whole width between them, and a grid all the height left.
void lay_out_page(QVBoxLayout* page, const std::vector<PagePlace>& places);

// The buttons at the foot, as wide as their captions, from the left; as
// many lines as the display's width needs.
QVBoxLayout* button_bar(const std::vector<QWidget*>& buttons);

}  // namespace mz::desktop
