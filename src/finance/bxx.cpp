// bxx: one account of the payables and receivables, to settle with its
// interest, alter, delete, or give a receipt for. The account search opens it.
#include <memory>
#include <utility>

#include "finance/bxx/form.h"
#include "finance/screens.h"
#include "finance/settlement.h"
#include "records/option_list.h"
#include "ui/fields.h"

namespace mz::finance {

using ui::ControlKind;

namespace {

// In the order of entry.
constexpr ui::FieldEntry kFields[] = {
    {"D1", "OPERAÇÃO:", ControlKind::ComboBox},
    {"D2", "DATA EMISSÃO:", ControlKind::MaskedBox},
    {"D3", "DATA VENC.:", ControlKind::MaskedBox},
    {"D4", "Nº DOC.:", ControlKind::TextBox},
    {"D5", "VALOR:", ControlKind::TextBox},
    {"D6", "HISTÓRICO:", ControlKind::ComboBox},
    {"D7", "TIPO:", ControlKind::ComboBox},
    {"D9", "CLIENTE:", ControlKind::TextBox},
    {"G1", "DIAS ATRASO", ControlKind::TextBox},
    {"G2", "JUROS P/ DIA", ControlKind::TextBox},
    {"G3", "VALOR JUROS", ControlKind::TextBox},
    {"VP", "VLR. OPERAÇÃO:", ControlKind::TextBox},
    {"PG", "DT.OPERAÇÃO:", ControlKind::MaskedBox},
    {"DVP", "Nº DOC:", ControlKind::TextBox},
};

constexpr records::OptionList kDescriptions{"\\C8.Mdb", "A1", "A1", ""};
constexpr records::OptionList kTypes{"\\C7.Mdb", "A1", "A1", ""};

}  // namespace

std::unique_ptr<ui::Form> make_bxx(ui::Runtime& rt) {
  auto form = std::make_unique<bxx::BxxForm>(rt, "bxx", "Contas");
  bxx::BxxForm& f = *form;
  f.add("Baixa", ControlKind::Label, "Baixa").bold = true;
  f.add("NN", ControlKind::TextBox);
  f.add("TT", ControlKind::Label);
  for (const ui::FieldEntry& field : kFields) add_field(f, field);
  f["D1"].items = {"Pagar", "Receber"};
  for (const char* date : {"D2", "D3", "PG"}) ui::date_field(f[date]);

  f["NN"].on_got_focus = [&rt, &f] { bxx::load_account(rt, f); };
  f["G2"].on_lost_focus = [&f] { bxx::add_interest(f); };
  f["VP"].on_lost_focus = [&f] { bxx::paid_by_hand(f); };

  f.add("Confirma", ControlKind::Button, "&Confirma").on_click = [&rt, &f] { bxx::confirm_settlement(rt, f); };
  f.add("Altera", ControlKind::Button, "&Altera").on_click = [&rt, &f] { bxx::alter_account(rt, f); };
  f.add("Apaga", ControlKind::Button, "A&paga").on_click = [&rt, &f] { bxx::delete_account(rt, f); };
  f.add("Recibo", ControlKind::Button, "&Recibo").on_click = [&rt, &f] { bxx::print_receipt(rt, f); };
  f.add("SSCommand5", ControlKind::Button, "&Volta").on_click = [&rt] { rt.close("bxx"); };

  f.on_load = [&rt, &f] {
    rt.centre(f);
    ui::name_combo(f["D6"], records::list_items(kDescriptions));
    ui::name_combo(f["D7"], records::list_items(kTypes));
    f["PG"].set_text(ui::today_text(rt));
    for (const char* money : {"G3", "VP", "D5"}) f[money].set_text("0,00");
    f["G2"].set_text("0,00");
  };
  // The account loads as NN gains the focus, each time the screen comes forward.
  f.on_activate = [&rt, &f] { rt.set_focus(f["NN"]); };
  return form;
}

void open_settlement(ui::Runtime& rt, const std::string& key, std::function<void()> after_change) {
  auto& f = dynamic_cast<bxx::BxxForm&>(rt.screen("bxx"));
  f.after_change = std::move(after_change);
  f["NN"].set_text(key);
  rt.show("bxx");
}

}  // namespace mz::finance
