// vendaimpre: the three formats of the sale standing on VENDA, and the list
// of network printer paths the shop keeps beside them.
#include <cstdlib>
#include <fstream>
#include <memory>

#include "core/text.h"
#include "sales/printing.h"
#include "sales/screens.h"
#include "store/database.h"
#include "store/sql_text.h"

namespace mz::sales {

using ui::ControlKind;

namespace {

constexpr const char* kPaths = "\\impeven1.mdb";
constexpr const char* kChosenPath = "\\impeven2.Mdb";

// The system's default printer as the print service names it: the user's
// choice in the environment, else the default of the lpoptions files.
std::string default_printer() {
  for (const char* variable : {"PRINTER", "LPDEST"})
    if (const char* name = std::getenv(variable); name && *name) return name;
  std::vector<std::string> files;
  if (const char* home = std::getenv("HOME")) files.push_back(std::string(home) + "/.cups/lpoptions");
  files.push_back("/etc/cups/lpoptions");
  for (const std::string& file : files) {
    std::ifstream in(file);
    for (std::string line; std::getline(in, line);)
      if (line.rfind("Default ", 0) == 0) return trim(line.substr(8, line.find(' ', 8) - 8));
  }
  return "";
}

std::string port() {
  store::Recordset rs =
      store::Workspace::open_database("\\EMPE.Mdb").open_recordset("SELECT* FROM EMPE ORDER BY A1");
  return rs.eof() ? "" : rs["A10"].text();
}

// The kept paths, and "Local" for the printer of this machine.
std::vector<std::string> path_items() {
  std::vector<std::string> items;
  store::Database db = store::Workspace::open_database(kPaths);
  for (store::Recordset rs = db.open_recordset("select A1 from A1 order by A1"); !rs.eof(); rs.move_next())
    items.push_back(rs[0].text());
  items.push_back("Local");
  return items;
}

std::string chosen_path() {
  store::Recordset rs = store::Workspace::open_database(kChosenPath).open_recordset("select a1 from a1");
  return rs.eof() ? "" : rs[0].text();
}

void keep_chosen_path(const std::string& path) {
  store::Recordset rs = store::Workspace::open_database(kChosenPath).open_recordset("select * from a1");
  if (rs.eof()) rs.add_new();
  else rs.edit();
  rs["a1"] = path;
  rs.update();
}

// One input box adds a path, or offers a path on the list for deletion.
// Paths are kept as typed: a network share's case is its own.
void add_or_remove_path(ui::Runtime& rt, ui::Control& combo) {
  std::string path =
      rt.host().input_box("Digite o novo caminho da impressora e clique no botão OK ", "Cadastro", "").value_or("");
  if (path.empty()) return;
  store::Database db = store::Workspace::open_database(kPaths);
  const std::string where = " where A1 = " + store::sql_quote(path);
  store::Recordset rs = db.open_recordset("select A1 from A1" + where);
  if (!rs.eof()) {
    if (rt.message("Confirma exclusão: " + path + "?", ui::Buttons::YesNo, ui::Icon::Question, "Cadastro") !=
        ui::Answer::Yes)
      return;
    rs.close();
    db.execute("delete from A1" + where);
    rt.message("Operação realizada com sucesso.");
  } else {
    rs.add_new();
    rs["A1"] = path;
    rs.update();
  }
  combo.set_text("");  // the list is cleared before it is filled again
  combo.list_index = -1;
  combo.items = path_items();
}

}  // namespace

std::unique_ptr<ui::Form> make_vendaimpre(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "vendaimpre", "Impressão - Venda");
  ui::Form& f = *form;
  auto sale = [&rt] { return read_sale(rt.screen("VENDA")); };
  f.add("FormatoA4", ControlKind::Button, "01- Formato A4").on_click = [&rt, sale] { print_a4(rt, sale()); };
  f.add("FormatoCupom", ControlKind::Button, "02- Formato Cupom").on_click = [&rt, sale] {
    print_cupom_format(rt, sale());
  };
  f.add("CarneParcelas", ControlKind::Button, "03- Carnê parcelas").on_click = [&rt, sale] {
    print_carne(rt, sale());
  };
  f.add("Label1", ControlKind::Label, "Impressora padrão:");
  f.add("NOMEI", ControlKind::Label);
  f.add("Label3", ControlKind::Label, "Porta:");
  f.add("Label2", ControlKind::Label);
  f.add("Label4", ControlKind::Label, "Caminho da impressora na rede:");
  // The path is only remembered and shown: the prints go to the system printer.
  ui::Control& paths = f.add("Combo1", ControlKind::ComboBox);
  paths.on_lost_focus = [&paths] { keep_chosen_path(paths.text()); };
  f.add("Command3", ControlKind::Button, "Cadastro").on_click = [&rt, &paths] { add_or_remove_path(rt, paths); };
  f.add("SSCommand5", ControlKind::Button, "&Volta").on_click = [&rt] { rt.close("vendaimpre"); };
  f.on_load = [&rt, &f, &paths] {
    rt.centre(f);
    f["NOMEI"].set_text(default_printer());
    f["Label2"].set_text(port());
    paths.items = path_items();
    paths.set_text(chosen_path());
  };
  return form;
}

}  // namespace mz::sales
