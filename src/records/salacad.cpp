// SALACAD: the employees' card and the list of all employees. The sale
// screen takes its sellers from here and the day closing their commission.
#include <memory>

#include "core/format.h"
#include "core/input_helpers.h"
#include "core/regional.h"
#include "core/text.h"
#include "records/screens.h"
#include "store/database.h"
#include "store/keys.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::records {

using ui::ControlKind;

namespace {

// In the order of entry, all on the card's tab.
constexpr ui::FieldEntry kFields[] = {
    {"X1", "CÓDIGO:", ControlKind::TextBox},
    {"X2", "NOME DO FUNCIONÁRIO:", ControlKind::TextBox},
    {"X4", "STATUS:", ControlKind::ComboBox},
    {"X9", "COMISSÃO:", ControlKind::TextBox},
    {"X10", "DATA ADMISSÃO:", ControlKind::MaskedBox},
    {"X11", "SALÁRIO:", ControlKind::TextBox},
    {"X3", "SETOR:", ControlKind::TextBox},
    {"X5", "DEPTO.:", ControlKind::TextBox},
    {"X6", "CARTEIRA DE TRABALHO:", ControlKind::TextBox},
    {"X7", "FUNÇÃO:", ControlKind::TextBox},
    {"X8", "R.G.:", ControlKind::TextBox},
    {"X12", "CPF:", ControlKind::TextBox},
    {"X13", "CARTEIRA DE MOTORISTA:", ControlKind::TextBox},
    {"X14", "UF:", ControlKind::TextBox},
    {"X15", "CIDADE:", ControlKind::TextBox},
    {"X16", "BAIRRO:", ControlKind::TextBox},
    {"X17", "ENDEREÇO:", ControlKind::TextBox},
    {"X18", "FONE 1:", ControlKind::TextBox},
    {"X19", "FONE 2:", ControlKind::TextBox},
    {"X20", "LOCAL:", ControlKind::TextBox},
    {"X21", "EMP:", ControlKind::TextBox},
    {"X22", "CBO:", ControlKind::TextBox},
};

constexpr int kCardPage = 0, kListPage = 1;
const std::vector<std::string> kHeading = {"CÓDIGO", "NOME DO FUNCIONÁRIO", "STATUS"};

store::Database employees() { return store::Workspace::open_database("\\SALA.Mdb"); }

store::Recordset employee_row(store::Database& db, const char* column, const std::string& value) {
  return db.open_recordset(std::string("SELECT* FROM SALA where ") + column + " = " + store::sql_quote(value));
}

// A code as the file keeps it: "7" is "0007".
std::string padded_code(const std::string& text) { return format(Value(text), "0000"); }

// Fills the card from the employee found by code or by name; a miss leaves
// the card as it is.
void load_employee(ui::Form& f, const char* column, const std::string& value) {
  store::Database db = employees();
  store::Recordset rs = employee_row(db, column, value);
  if (rs.eof()) return;
  for (const ui::FieldEntry& field : kFields) {
    std::string name(field.name);
    f[name].set_text(name == "X10" ? store::data_tela(rs[name]) : rs[name].text());
  }
}

void write_employee(store::Recordset& rs, const ui::Form& f) {
  for (const ui::FieldEntry& field : kFields) {
    std::string name(field.name);
    const std::string& text = f[name].text();
    rs[name] = Value(name == "X10" ? ui::stored_date(text) : text);
  }
}

void list_employees(ui::Form& f, const char* order) {
  std::vector<std::vector<std::string>> rows;
  store::Database db = employees();
  for (store::Recordset rs = db.open_recordset(std::string("Select * From sala order by ") + order); !rs.eof();
       rs.move_next())
    rows.push_back({rs["X1"].text(), rs["X2"].text(), rs["X4"].text()});
  ui::show_rows(f["Grid1"], kHeading, rows);
}

std::string next_code() {
  store::Database db = employees();
  return store::next_key(db, store::keys::kEmployee);
}

// A blank card under the next code; the list in the order asked for.
void new_record(ui::Form& f, const char* order) {
  for (const ui::FieldEntry& field : kFields) f[field.name].set_text("");
  f["X4"].list_index = -1;
  f["X4"].set_text("ATIVO");
  f["X11"].set_text("0,00");
  f["X1"].set_text(next_code());
  list_employees(f, order);
}

// Back to the card's first field. The focus moves before the card changes,
// so that the field being left applies its rule to what it held.
void to_first_field(ui::Runtime& rt, ui::Form& f) {
  f["SSTab1"].list_index = kCardPage;
  rt.set_focus(f["X1"]);
}

void select_all(ui::Control& field) {
  field.sel_start = 0;
  field.sel_length = len(field.text());
}

bool has_digit(const std::string& text) { return text.find_first_of("0123456789") != std::string::npos; }

// Grava from the menu leaves no field: a date or a salary still being typed
// takes here the rule it would take on leaving. A date never given stays blank.
void settle_typed_values(ui::Runtime& rt, ui::Form& f) {
  ui::Control& admission = f["X10"];
  if (!admission.text().empty()) admission.set_text(date_field_rule(admission.text(), rt.host().today()));
  ui::Control& salary = f["X11"];
  if (!parse_money(salary.text())) salary.set_text("0,00");
}

}  // namespace

std::unique_ptr<ui::Form> make_salacad(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "SALACAD", "Cadastro -> Funcionários");
  ui::Form& f = *form;
  ui::Control& tabs = f.add("SSTab1", ControlKind::Tabs);
  tabs.items = {"Cadastro", "Funcionários"};
  tabs.tab_stop = false;
  for (const ui::FieldEntry& field : kFields) {
    ui::add_field(f, field);
    if (field.name == "X9") f.add("LX9Unit", ControlKind::Label, "(%)");
  }

  ui::Control& code = f["X1"];
  ui::number_field(code);
  code.on_lost_focus = [&f, &code] {
    code.set_text(padded_code(code.text()));
    load_employee(f, "X1", code.text());
  };
  f["X2"].on_lost_focus = [&f] { load_employee(f, "X2", f["X2"].text()); };
  ui::name_combo(f["X4"], {"ATIVO", "BLOQUEADO"});
  // The commission is a per cent kept as typed, decimals with one comma.
  ui::Control& commission = f["X9"];
  commission.on_key_press = [&commission](int& key) {
    key = static_cast<int>(so_numero(commission.text(), static_cast<char32_t>(key)));
  };
  ui::date_field(f["X10"]);
  ui::money_field(f["X11"]);

  auto start_over = [&rt, &f](const char* order) {
    to_first_field(rt, f);
    new_record(f, order);
    select_all(f["X1"]);
  };
  auto grava = [&rt, &f, start_over] {
    ui::Control& commission = f["X9"];
    if (!has_digit(commission.text())) commission.set_text("0");
    if (f["X2"].text().empty()) return (void)rt.message("O campo [Nome], não pode ficar em branco.");
    if (ui::money_out_of_range(f["X11"].text())) return (void)rt.message(ui::kMoneyTooLarge);
    settle_typed_values(rt, f);
    // Written as it would be on leaving the field; a code left blank takes the next one.
    ui::Control& code = f["X1"];
    code.set_text(code.text().empty() ? next_code() : padded_code(code.text()));
    store::Database db = employees();
    store::Recordset rs = employee_row(db, "X1", code.text());
    if (rs.eof()) rs.add_new();
    else rs.edit();
    write_employee(rs, f);
    rs.update();
    rs.close();
    rt.message("Registro gravado com sucesso.");
    start_over("x1");
  };
  auto apaga = [&rt, &f, start_over] {
    ui::Control& code = f["X1"];
    if (code.text().empty()) return (void)rt.message("Faça a busca do cadastro para depois excluir.");
    if (rt.message("Confirma exclusão?", ui::Buttons::YesNo, ui::Icon::Question) != ui::Answer::Yes) return;
    code.set_text(padded_code(code.text()));
    store::Database db = employees();
    store::Recordset rs = employee_row(db, "X1", code.text());
    bool found = !rs.eof();
    if (found) rs.delete_current();
    rs.close();
    if (found) rt.message("Exclusão realizada com sucesso.");
    start_over("x1");
  };
  // The menu items and buttons of the same name do the same thing.
  ui::add_action(f, "Grava", "sdf", "Grava", grava);
  ui::add_action(f, "Apaga", "asd", "Apaga", apaga);
  f.add("Novo", ControlKind::Button, "Novo").on_click = [start_over] { start_over("x2"); };
  f.add("Command17", ControlKind::Button, "Ajuda").on_click = [&rt] {
    rt.message("O Ajuda, será aberto minimizado na barra de tarefas.", ui::Buttons::Ok, ui::Icon::Information);
    rt.host().start_program("Ajuda.exe");
  };
  f.add("Command7", ControlKind::Button, "Volta").on_click = [&rt] { rt.close("SALACAD"); };

  // The list of all employees; a double click takes one back to the card.
  ui::Control& grid = f.add("Grid1", ControlKind::Grid);
  grid.page = kListPage;
  grid.on_dbl_click = [&rt, &f, &grid] {
    std::string key = ui::chosen_key(grid);
    if (key.empty()) return;
    to_first_field(rt, f);
    load_employee(f, "X1", key);
    select_all(f["X1"]);
  };

  f.on_load = [&rt, &f] {
    rt.centre(f);
    f["SSTab1"].list_index = kCardPage;
    new_record(f, "x2");
  };
  return form;
}

}  // namespace mz::records
