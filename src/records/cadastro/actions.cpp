// What the buttons of Cadastro do: store, start a new card, delete, import
// the scratch copy, keep the classifications, and leave.
#include "records/cadastro/card.h"
#include "records/option_list.h"
#include "store/keys.h"
#include "store/sql_text.h"
#include "ui/fields.h"

namespace mz::records::cadastro {

using ui::ControlKind;

namespace {

void grava(CadastroForm& f) {
  ui::Runtime& rt = f.rt();
  if (f["A1"].text().empty()) return (void)rt.message("O campo [Nome/Razão Social], não pode ficar em branco.");
  if (f["A26"].text().empty()) return (void)rt.message("O campo [Classificação], não pode ficar em branco.");
  bool stored = ui::jump_style(rt, [&f] {
    f.save_dependants(f["A1"].text());
    store::Database db = customers();
    if (f["NN"].text().empty()) f["NN"].set_text(store::next_key(db, store::keys::kCustomer));
    store::Recordset rs = customer_where(db, "CODIGO", f["NN"].text());
    bool is_new = rs.eof();
    if (is_new) rs.add_new();
    else rs.edit();
    f.write_customer(rs, is_new);
    rs.update();
  });
  if (!stored) return;
  f.looked_up = true;
  rt.message("Registro gravado com sucesso.");
}

void novo(CadastroForm& f) {
  f.clear_card();
  store::Database db = customers();
  f["NN"].set_text(store::next_key(db, store::keys::kCustomer));
  f.rt().set_focus(f["A1"]);
}

void apaga(CadastroForm& f) {
  ui::Runtime& rt = f.rt();
  if (!f.looked_up) return (void)rt.message("Realize a consulta, para depois apagar.");
  if (rt.message("Deseja realmente apagar este cadastro?", ui::Buttons::YesNo, ui::Icon::Question) != ui::Answer::Yes)
    return;
  bool deleted = ui::jump_style(rt, [&f] {
    store::Database db = customers();
    std::string code = f["NN"].text();
    store::Recordset rs = customer_where(db, "CODIGO", code);
    // The dependants go under the name the card has on file.
    std::string name = rs.eof() ? f["A1"].text() : rs["A1"].text();
    rs.close();
    store::Workspace::open_database("\\DEPE.MDB").execute("delete from DEPE where A1 = " + store::sql_quote(name));
    db.execute("delete from CADA where CODIGO = " + store::sql_quote(code));
  });
  if (!deleted) return;
  rt.message("Exclusão realizada com sucesso.");
  f.clear_card();
  rt.set_focus(f["A1"]);
}

// Every card of the scratch copy becomes a new customer under the next code.
// No question comes between the writes, so they go in as one unit.
void importa(CadastroForm& f) {
  ui::Runtime& rt = f.rt();
  bool done = ui::jump_style(rt, [&rt] {
    rt.wait_pointer(true);
    store::Database scratch = store::Workspace::open_database("\\Cadax.Mdb");
    store::Database db = customers();
    store::Database::Transaction unit(db);
    store::Recordset target = customer_where(db, "CODIGO", "");
    for (store::Recordset rs = scratch.open_recordset("Select * From CADA order by A1"); !rs.eof(); rs.move_next()) {
      std::string code = store::next_key(db, store::keys::kCustomer);
      target.add_new();
      target["CODIGO"] = Value(code);
      for (int n = 1; n <= 36; ++n) target["A" + std::to_string(n)] = rs["A" + std::to_string(n)].value();
      for (int n = 1; n <= 18; ++n) target["D" + std::to_string(n)] = rs["D" + std::to_string(n)].value();
      target.update();
    }
    unit.commit();
    rt.wait_pointer(false);
  });
  if (done) rt.message("Atualização completada.");
}

}  // namespace

void add_actions(CadastroForm& f) {
  ui::Runtime& rt = f.rt();
  ui::add_action(f, "Command16", "dsf", "Grava  ", [&f] { grava(f); });
  ui::add_action(f, "Command2", "sd", "Novo  ", [&f] { novo(f); });
  ui::add_action(f, "Command3", "as", "Exclui", [&f] { apaga(f); });
  ui::add_action(f, "Command8", "df", "Relatórios", [&rt] { rt.show("Impe"); });
  ui::add_action(f, "Command7", "fg", "Volta", [&rt] { rt.close("Cadastro"); });
  f.add("Command1", ControlKind::Button, "Classificações").on_click = [&rt, &f] {
    add_or_remove(rt, lists::kClassifications, f["A26"]);
  };
  f.add("Command5", ControlKind::Button, "Importa").on_click = [&f] { importa(f); };
}

}  // namespace mz::records::cadastro
