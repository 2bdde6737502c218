// TELEFONE: the shop's own phone book, apart from the customers; fone: a
// quick look-up over the customers' telephones.
#include <memory>

#include "maintenance/screens.h"
#include "store/database.h"
#include "store/keys.h"
#include "store/sql_text.h"
#include "ui/fields.h"
#include "ui/report.h"

namespace mz::maintenance {

using ui::ControlKind;

namespace {

// The detail tab in the order of entry; A4 and A7 carry what the operator
// keeps there, with no caption of their own.
constexpr ui::FieldEntry kFields[] = {
    {"A1", "Nome", ControlKind::TextBox},          {"A2", "Apelido", ControlKind::TextBox},
    {"A3", "Dia / Mês Nasc.", ControlKind::TextBox}, {"A4", "", ControlKind::TextBox},
    {"A5", "Telefone 1", ControlKind::TextBox},    {"A6", "Telefone 2", ControlKind::TextBox},
    {"A7", "", ControlKind::TextBox},              {"A8", "Telefone 3", ControlKind::TextBox},
    {"A9", "Telefone 4", ControlKind::TextBox},    {"A10", "E-mail", ControlKind::TextBox},
    {"A11", "Skype", ControlKind::TextBox},        {"A12", "Messenger", ControlKind::TextBox},
    {"A13", "Endereço", ControlKind::TextBox},     {"A14", "Bairro", ControlKind::TextBox},
    {"A15", "Cidade", ControlKind::TextBox},       {"A16", "Observações", ControlKind::TextBox},
};

constexpr int kListPage = 0, kDetailPage = 1;
const std::vector<std::string> kHeading = {"Nome", "Apelido", "Telefone 1", "Telefone 2", "Telefone 3"};
constexpr const char* kAll = "Select * From telefone order by A1";

// The grid's rows stand for contacts whose ID the screen keeps beside them.
class TelefoneForm : public ui::Form {
 public:
  explicit TelefoneForm(ui::Runtime& rt) : ui::Form(rt, "TELEFONE", "Agenda de telefones") {}
  std::string record_source = kAll;
  std::vector<std::string> ids;
};

store::Database phone_book() { return store::Workspace::open_database("\\TELEFONE.MDB"); }

store::Recordset contact(store::Database& db, const std::string& id) {
  return db.open_recordset("SELECT* FROM telefone where ID = " + store::sql_quote(id));
}

// Data1.Refresh: the grid shows what its statement finds now.
void refresh(TelefoneForm& f) {
  std::vector<std::vector<std::string>> rows;
  f.ids.clear();
  store::Database db = phone_book();
  for (store::Recordset rs = db.open_recordset(f.record_source); !rs.eof(); rs.move_next()) {
    rows.push_back({rs["A1"].text(), rs["A2"].text(), rs["A5"].text(), rs["A6"].text(), rs["A8"].text()});
    f.ids.push_back(rs["ID"].text());
  }
  ui::Control& grid = f["DBGrid1"];
  ui::show_rows(grid, kHeading, rows);
  ui::zebra_grid(grid, 1, ui::kWhite);  // a bound list is not striped
}

// A prefix search on one column; an empty field finds everyone.
void search(TelefoneForm& f, const char* column, const std::string& text) {
  f.record_source = std::string("Select * From telefone Where (telefone.") + column + " Like " +
                    store::sql_quote(text + "*") + ") Order By a1;";
  refresh(f);
}

void new_contact(TelefoneForm& f) {
  store::Database db = phone_book();
  f["ID"].set_text(store::next_key(db, store::keys::kPhone));
  for (const ui::FieldEntry& field : kFields) f[field.name].set_text("");
}

void to_detail(ui::Runtime& rt, TelefoneForm& f) {
  f["SSTab1"].list_index = kDetailPage;
  rt.set_focus(f["A1"]);
}

void show_contact(ui::Runtime& rt, TelefoneForm& f) {
  int row = f["DBGrid1"].grid.row;
  if (row < 1 || row > static_cast<int>(f.ids.size())) return;
  store::Database db = phone_book();
  store::Recordset rs = contact(db, f.ids[row - 1]);
  if (rs.eof()) return;
  f["ID"].set_text(rs["ID"].text());
  for (const ui::FieldEntry& field : kFields) f[field.name].set_text(rs[field.name].text());
  to_detail(rt, f);
}

void grava(ui::Runtime& rt, TelefoneForm& f) {
  if (f["A1"].text().empty()) return (void)rt.message("Digite o nome antes.");
  {
    store::Database db = phone_book();
    store::Recordset rs = contact(db, f["ID"].text());
    if (rs.eof()) rs.add_new();
    else rs.edit();
    rs["ID"] = Value(f["ID"].text());
    for (const ui::FieldEntry& field : kFields) rs[field.name] = Value(f[field.name].text());
    rs.update();
  }
  refresh(f);
}

void exclui(ui::Runtime& rt, TelefoneForm& f) {
  if (rt.message("Confirma exclusão?", ui::Buttons::YesNo, ui::Icon::Question) != ui::Answer::Yes) return;
  phone_book().execute("Delete from telefone where ID = " + store::sql_quote(f["ID"].text()));
  refresh(f);
  // The card would otherwise offer to write the deleted contact back.
  new_contact(f);
}

}  // namespace

std::unique_ptr<ui::Form> make_telefone(ui::Runtime& rt) {
  auto form = std::make_unique<TelefoneForm>(rt);
  TelefoneForm& f = *form;
  ui::Control& tabs = f.add("SSTab1", ControlKind::Tabs);
  tabs.items = {"Telefones", "Dados"};
  tabs.tab_stop = false;
  struct Search {
    const char* field;
    const char* caption;
    const char* column;
  };
  for (const Search& s : {Search{"Text1", "Pesquisa por nome", "a1"}, Search{"Text2", "Pesquisa por telefone 1", "a5"},
                          Search{"Text3", "Pesquisa por apelido", "a2"}}) {
    ui::Control& box = ui::add_field(f, s.field, ControlKind::TextBox, s.caption);
    box.enter_moves_on = true;
    box.on_change = [&f, &box, column = s.column] { search(f, column, box.text()); };
  }
  ui::Control& grid = f.add("DBGrid1", ControlKind::BoundGrid);
  grid.on_dbl_click = [&rt, &f] { show_contact(rt, f); };

  ui::Control& id = ui::add_field(f, "ID", ControlKind::TextBox, "Código");
  id.enabled = false;
  id.page = kDetailPage;
  for (const ui::FieldEntry& field : kFields) {
    ui::Control& box = ui::add_field(f, field);
    box.enter_moves_on = true;
    box.page = kDetailPage;
    if (ui::Control* caption = f.find(std::string("L") + std::string(field.name))) caption->page = kDetailPage;
  }
  f["LID"].page = kDetailPage;
  f["A16"].multi_line = true;

  auto report = std::make_shared<ui::Report>(rt, print::Destination::Window);
  f.add("sdf", ControlKind::Button, "Grava").on_click = [&rt, &f] { grava(rt, f); };
  f.add("gh", ControlKind::Button, "Novo").on_click = [&rt, &f] {
    new_contact(f);
    to_detail(rt, f);
  };
  f.add("jhj", ControlKind::Button, "Exclui").on_click = [&rt, &f] { exclui(rt, f); };
  f.add("ert", ControlKind::Button, "Imprime").on_click = [report] {
    report->data_files = "\\telefone.mdb";
    report->report_file_name = "\\telefone.rpt";
    report->action(1);
  };
  f.add("kjl", ControlKind::Button, "Volta").on_click = [&rt] { rt.close("TELEFONE"); };

  f.on_load = [&rt, &f] {
    rt.centre(f);
    f["SSTab1"].list_index = kListPage;
    f.record_source = kAll;
    refresh(f);
    new_contact(f);
  };
  return form;
}

}  // namespace mz::maintenance
