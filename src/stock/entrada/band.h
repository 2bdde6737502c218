#pragma once
// The line band of the stock movement screens (ENTRADA, PEDIDO): the fields
// in which one reference is keyed with its quantity per size, the grid that
// collects the launched lines, and the running totals the lines move.
//
// The band declares CD, GR, E2, the captions A1..A50 over the boxes
// X1..X50, E6, E7, ES, ET and Grid1. The screen declares the totals it
// shows where its layout wants them: TL.PEÇAS `nr`, the products' total
// `TL` and the document's total `TT`; the band adds to them by name. A
// screen that numbers its lines declares the label `ITEM` too, and the band
// counts each launched line in and each removed one out.
#include <functional>
#include <string>

#include "store/database.h"
#include "ui/runtime.h"

namespace mz::stock::band {

// Columns of Grid1: the reference, the 50 slots (column n is slot n), then
// these.
inline constexpr int kReferenceColumn = 0;
inline constexpr int kQuantityColumn = 51;
inline constexpr int kCostColumn = 52;
inline constexpr int kSubtotalColumn = 53;
inline constexpr int kLabelColumn = 54;
inline constexpr int kColumns = 55;


// Declares the band's controls in their order of entry, on `page`, with
// their behaviours: the look-ups by supplier code, description and
// reference, the digit-only size boxes, the launch on leaving ET, the
// removal of a line by a double click.
void add_band(ui::Runtime& rt, ui::Form& f, int page = 0);

// The screen's opening: the descriptions in E2, the size captions over the
// boxes and over the grid's columns, the boxes painted as sizes the
// reference lacks, EST. ATUAL at 0, the totals at zero.
void load_band(ui::Form& f);

// F1, or leaving ET: the line keyed in the band goes into the grid and the
// totals, and the band is ready for the next reference.
void launch_line(ui::Runtime& rt, ui::Form& f);

// Empties the line fields and the boxes, repainted as sizes the reference
// lacks.
void clear_line(ui::Form& f);
// TL.PEÇAS and TL.PRODUTOS at zero, the document's total empty.
void reset_totals(ui::Form& f);
// The grid back to its heading.
void empty_grid(ui::Form& f);

// A recorded row of the ledger (REFERENCIA, X1..X50, QTDA, VALOR, ET) as a
// line of the grid, its pieces and subtotal added to nr and TL, and to TT
// when `with_document_total`.
void add_recorded_line(ui::Form& f, store::Recordset& rs, bool with_document_total = false);

}  // namespace mz::stock::band
