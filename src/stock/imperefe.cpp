// IMPEREFE: the print menu of the product register. The reference lists go
// straight to their reports over GRUPO; the stock lists first write every
// reference's balance into IMESTO and print from there.
#include <memory>
#include <string>

#include "stock/imperefe/stock_list.h"
#include "stock/reports_screens.h"
#include "ui/fields.h"
#include "ui/report.h"

namespace mz::stock {

using ui::ControlKind;

namespace {

enum class Source {
  References,     // GRUPO as it stands
  OneGroup,       // GRUPO, the group of the product card
  OneSupplier,    // GRUPO, the supplier's code of the product card
  ValuedStock,    // IMESTO, every reference
  PurchaseStock,  // IMESTO, the references below their minimum
};

struct Option {
  const char* text;
  const char* report;
  Source source;
};

// In the order of the list; the row of blanks between the families prints
// nothing.
constexpr Option kOptions[] = {
    {"LISTA GERAL DE REFERÊNCIAS - ORDEM ALFABÉTICA.", "E1.rpt", Source::References},
    {"LISTA GERAL DE REFERÊNCIAS - ORDEM REFERÊNCIA.", "E2.rpt", Source::References},
    {"LISTA GERAL DE REFERÊNCIAS - POR GRUPO.", "E3.rpt", Source::OneGroup},
    {"LISTA GERAL DE REFERÊNCIAS - POR FORNECEDOR.", "E3X.rpt", Source::OneSupplier},
    {"                      ", nullptr, Source::References},
    {"LISTA GERAL DE ESTOQUE.", "E4.rpt", Source::ValuedStock},
    {"LISTA GERAL DE ESTOQUE - COMPRAS.", "E6.rpt", Source::PurchaseStock},
    {"LISTA GERAL DE ESTOQUE POR GRUPO.", "E5.rpt", Source::ValuedStock},
};

const Option* chosen(const std::string& text) {
  for (const Option& option : kOptions)
    if (option.report && text == option.text) return &option;
  return nullptr;
}

// The filter on a field of the product card; an empty field says so and
// closes the menu. False when there is nothing to print.
bool card_filter(ui::Runtime& rt, const char* field, const char* column, const char* missing, ui::Report& report) {
  const std::string value = rt.screen("PRODUTO")[field].text();
  if (value.empty()) {
    rt.message(missing);
    rt.close("IMPEREFE");
    return false;
  }
  report.selection_formula = std::string("{grupo.") + column + "} = '" + value + "'";
  return true;
}

void imprime(ui::Runtime& rt, ui::Form& f, ui::Report& report) {
  const Option* option = chosen(f["Combo1"].text());
  if (!option) return;
  report.selection_formula.clear();
  switch (option->source) {
    case Source::References: break;
    case Source::OneGroup:
      if (!card_filter(rt, "E1", "e1", "Primeiro selecione o grupo desejado.", report)) return;
      break;
    case Source::OneSupplier:
      if (!card_filter(rt, "E3", "e3", "Primeiro digite o fornecedor desejado.", report)) return;
      break;
    case Source::ValuedStock:
    case Source::PurchaseStock: {
      ui::Control& count = f["NN"];
      count.set_text("0");
      rt.wait_pointer(true);
      imperefe::write_stock_list(
          option->source == Source::ValuedStock ? imperefe::StockList::Valued : imperefe::StockList::Purchases,
          [&count](int written) { count.set_text(std::to_string(written)); });
      rt.wait_pointer(false);
      break;
    }
  }
  const bool stock = option->source == Source::ValuedStock || option->source == Source::PurchaseStock;
  report.data_files = stock ? "\\IMESTO.mdb" : "\\REFE.mdb";
  report.report_file_name = std::string("\\") + option->report;
  report.action(1);
}

}  // namespace

std::unique_ptr<ui::Form> make_imperefe(ui::Runtime& rt) {
  auto form = std::make_unique<ui::Form>(rt, "IMPEREFE", "Impressões");
  ui::Form& f = *form;
  f.add("SelecioneAOpcaoDeImpressaoECliqueNoBotaoImprime", ControlKind::Label,
        "Selecione a opção de impressão e clique no botão  [Imprime]:");
  ui::Control& options = f.add("Combo1", ControlKind::ComboBox);
  for (const Option& option : kOptions) options.items.push_back(option.text);
  // The list drops down by itself as it takes the focus.
  options.on_got_focus = [&options] { options.dropped_down = true; };
  auto report = std::make_shared<ui::Report>(rt, print::Destination::Window);
  f.add("SSCommand7", ControlKind::Button, "&Imprime").on_click = [&rt, &f, report] { imprime(rt, f, *report); };
  f.add("SSCommand1", ControlKind::Button, "&Seleciona").on_click = [&rt] { ui::choose_printer(rt); };
  f.add("SSCommand5", ControlKind::Button, "&Volta").on_click = [&rt] { rt.close("IMPEREFE"); };
  f.add("NN", ControlKind::Label);
  f.add("LigueAImpressoraEColoqueOPapel", ControlKind::Label, "LIGUE A IMPRESSORA E COLOQUE O PAPEL.");
  f.on_load = [&rt, &f] { rt.centre(f); };
  return form;
}

}  // namespace mz::stock
