#include "records/produto/browse.h"

#include "records/produto/card.h"
#include "store/sql_text.h"

namespace mz::records::produto {

// Each step asks for its one row instead of walking "order by GR" to the
// code on screen. The walk's outcomes stay: it meets only a code that is on
// file, so with any other code (a new card, a deleted reference) nothing
// moves; past the last row the card stays as it is; before the first row
// the walk stays on that row and copies it again. On an empty table first
// and last fail with "no current record", as MoveFirst and MoveLast did.
void browse(ui::Form& f, Step step) {
  store::Database db = references();
  store::Recordset rs;
  if (step == Step::First) {
    rs = db.open_recordset("SELECT TOP 1 * FROM GRUPO order by GR");
  } else if (step == Step::Last) {
    rs = db.open_recordset("SELECT TOP 1 * FROM GRUPO order by GR desc");
  } else {
    const std::string code = f["GR"].text();
    if (reference_row(db, code).eof()) return;
    const std::string at = store::sql_quote(code);
    if (step == Step::Next) {
      rs = db.open_recordset("SELECT TOP 1 * FROM GRUPO where GR > " + at + " order by GR");
      if (rs.eof()) return;
    } else {
      rs = db.open_recordset("SELECT TOP 1 * FROM GRUPO where GR < " + at + " order by GR desc");
      if (rs.eof()) rs = reference_row(db, code);
    }
  }
  show_reference(f, rs);
}

}  // namespace mz::records::produto
