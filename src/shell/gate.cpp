// The gate protocol and SENHA2, the password box it shows.
#include <array>

#include "core/error.h"
#include "core/text.h"
#include "shell/screens.h"
#include "store/database.h"

namespace mz::shell {
namespace {

using ui::ControlKind;

struct GateCode {
  const char* code;    // SENHA2.NN and the CDSEN column it compares with
  const char* target;  // the screen it opens
};
constexpr std::array<GateCode, 7> kGates = {{{"A2", "Cadastro"},
                                             {"A3", "VENDA"},
                                             {"A4", "GRADE"},
                                             {"A5", "CONSULTA"},
                                             {"A6", "ENTRADA"},
                                             {"A7", "Contas"},
                                             {"A19", "PRODUTO"}}};

const GateCode* gate_of(const std::string& code) {
  for (const auto& g : kGates)
    if (code == g.code) return &g;
  return nullptr;
}

}  // namespace

store::Recordset password_row() {
  store::Database db = store::Workspace::open_database("\\CDSE.Mdb", ";pwd=604215");
  return db.open_recordset("SELECT* FROM CDSEN where CODIGO = '1'");
}

void show_waiting(ui::Runtime& rt, const std::string& target) {
  rt.wait_pointer(true);
  rt.show(target);
}

void open_guarded(ui::Runtime& rt, const std::string& code) {
  const GateCode* gate = gate_of(code);
  store::Recordset rs = password_row();
  if (rs.eof() || !gate) return;
  if (rs[code].text().empty()) return show_waiting(rt, gate->target);
  rt.screen("SENHA2")["NN"].set_text(code);
  rt.show("SENHA2");
}

void open_sales(ui::Runtime& rt) {
  try {
    open_guarded(rt, "A3");
  } catch (const Error&) {
    rt.wait_pointer(false);  // the exit block: back to the main screen
  }
}

void open_module(ui::Runtime& rt, int module) {
  if (module == 1) return open_sales(rt);
  static const char* const kMenus[] = {"opera1", nullptr, "OPERA2", "OPERA"};
  if (module >= 0 && module < 4) rt.show(kMenus[module]);
}

std::unique_ptr<ui::Form> make_senha2(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "SENHA2", "Senha");
  ui::Form& f = *form;
  f.add("Text1", ControlKind::TextBox);
  f.add("NN", ControlKind::TextBox).visible = false;
  f.add("Command1", ControlKind::Button, "OK").on_click = [&rt, &f] {
    const GateCode* gate = gate_of(f["NN"].text());
    if (!gate) return;
    store::Recordset rs = password_row();
    if (rs.eof()) return;
    if (ucase(f["Text1"].text()) != rs[gate->code].text()) {
      rt.message("Acesso não autorizado.");
      return;
    }
    std::string target = gate->target;
    rt.close("SENHA2");
    show_waiting(rt, target);
  };
  f.add("Command2", ControlKind::Button, "&CANCELA").on_click = [&rt] { rt.close("SENHA2"); };
  return form;
}

}  // namespace mz::shell
