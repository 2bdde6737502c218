#include "records/grade.h"

#include "store/database.h"

namespace mz::records {

using ui::ControlKind;

namespace {

std::string slot(int n) { return "A" + std::to_string(n); }

store::Recordset grade_row() {
  return store::Workspace::open_database("\\GRADE.Mdb").open_recordset("SELECT* FROM GRADE ORDER BY A1");
}

}  // namespace

std::optional<std::array<std::string, 50>> grade_load() {
  store::Recordset rs = grade_row();
  if (rs.eof()) return std::nullopt;
  std::array<std::string, 50> labels;
  for (int n = 1; n <= 50; ++n) labels[static_cast<size_t>(n - 1)] = rs[slot(n)].text();
  return labels;
}

std::unique_ptr<ui::Form> make_grade(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "GRADE", "Cadastro da Grade");
  ui::Form& f = *form;
  for (int n = 1; n <= 50; ++n) f.add(slot(n), ControlKind::TextBox);
  auto grava = [&rt, &f] {
    store::Recordset rs = grade_row();
    if (rs.eof()) return;  // no way to add the row: nothing happens
    rs.edit();
    for (int n = 1; n <= 50; ++n) rs[slot(n)] = f[slot(n)].text();
    rs.update();
    rt.message("Grade gravada com sucesso.");
  };
  auto volta = [&rt] { rt.close("GRADE"); };
  ui::add_action(f, "Command16", "sdfsd", "Grava", grava);
  ui::add_action(f, "Command7", "dfgdfg", "Volta", volta);
  f.on_load = [&rt, &f] {
    rt.centre(f);
    if (auto labels = grade_load())
      for (int n = 1; n <= 50; ++n) f[slot(n)].set_text((*labels)[static_cast<size_t>(n - 1)]);
  };
  return form;
}

}  // namespace mz::records
