#include "finance/reports/variants.h"

namespace mz::finance::reports {

namespace {

constexpr const char* kToPay = "RELATÓRIO DE CONTAS A PAGAR";
constexpr const char* kToReceive = "RELATÓRIO DE CONTAS A RECEBER";
constexpr const char* kPaid = "RELATÓRIO DE CONTAS PAGAS";
constexpr const char* kReceived = "RELATÓRIO DE CONTAS RECEBIDAS";
constexpr const char* kToPayBy = "RELATÓRIO DE CONTAS A PAGAR POR CLIENTE";
constexpr const char* kToReceiveBy = "RELATÓRIO DE CONTAS A RECEBER POR CLIENTE";
constexpr const char* kPaidBy = "RELATÓRIO DE CONTAS PAGAS POR CLIENTE";
constexpr const char* kReceivedBy = "RELATÓRIO DE CONTAS RECEBIDAS POR CLIENTE";

constexpr Variant kVariants[] = {
    {kToPay, "T1", "D3", "Pagar", "A", "RELATÓRIO DE CONTAS A PAGAR - VENCIMENTO.", "\\R6.rpt"},
    {kToPay, "T2", "D2", "Pagar", "A", "RELATÓRIO DE CONTAS A PAGAR - EMISSÃO.", "\\R66.rpt"},
    {kToReceive, "T1", "D3", "Receber", "A", "RELATÓRIO DE CONTAS A RECEBER - VENCIMENTO.", "\\R6.rpt"},
    {kToReceive, "T2", "D2", "Receber", "A", "RELATÓRIO DE CONTAS A RECEBER - EMISSÃO.", "\\R66.rpt"},
    {kPaid, "T1", "D3", "Pagar", "F", "RELATÓRIO DE CONTAS PAGAS - VENCIMENTO.", "\\R7.rpt"},
    {kPaid, "T2", "D2", "Pagar", "F", "RELATÓRIO DE CONTAS PAGAS - EMISSÃO.", "\\R77.rpt"},
    {kPaid, "T3", "PG", "Pagar", "F", "RELATÓRIO DE CONTAS PAGAS - OPERAÇÃO.", "\\R777.rpt"},
    {kPaid, "T4", "PG", "Pagar", "F", "RELATÓRIO DE CONTAS PAGAS - OPERAÇÃO.", "\\R7X.rpt"},
    {kReceived, "T1", "D3", "Receber", "F", "RELATÓRIO DE CONTAS RECEBIDAS - VENCIMENTO.", "\\R7.rpt"},
    {kReceived, "T2", "D2", "Receber", "F", "RELATÓRIO DE CONTAS RECEBIDAS - EMISSÃO.", "\\R77.rpt"},
    {kReceived, "T3", "PG", "Receber", "F", "RELATÓRIO DE CONTAS RECEBIDAS - OPERAÇÃO.", "\\R777.rpt"},
    {kReceived, "T4", "PG", "Receber", "F", "RELATÓRIO DE CONTAS RECEBIDAS - OPERAÇÃO.", "\\R7X.rpt"},
    {kToPayBy, "", "D3", "Pagar", "A", kToPayBy, "\\R12.rpt"},
    {kToReceiveBy, "", "D3", "Receber", "A", kToReceiveBy, "\\R12.rpt"},
    {kPaidBy, "", "D3", "Pagar", "F", kPaidBy, "\\R13.rpt"},
    {kReceivedBy, "", "D3", "Receber", "F", kReceivedBy, "\\R13.rpt"},
};

constexpr std::string_view kByPlan = " POR PLANO DE CONTAS";

struct Text {
  const char* text;
  const char* title;
  const char* screen;
};
// The texts Impecon answers to: its list, and the reports by plan of
// accounts that it recognises though the list does not offer them.
constexpr Text kTexts[] = {
    {"CONTAS A PAGAR.", kToPay, "IMPECON2"},
    {"CONTAS PAGAS.", kPaid, "IMPECON2"},
    {"CONTAS A RECEBER.", kToReceive, "IMPECON2"},
    {"CONTAS RECEBIDAS.", kReceived, "IMPECON2"},
    {"CONTAS A PAGAR POR CLIENTE.", kToPayBy, "IMPECON4"},
    {"CONTAS PAGAS POR CLIENTE.", kPaidBy, "IMPECON4"},
    {"CONTAS A RECEBER POR CLIENTE.", kToReceiveBy, "IMPECON4"},
    {"CONTAS RECEBIDAS POR CLIENTE.", kReceivedBy, "IMPECON4"},
    {"CONTAS A PAGAR POR PLANO DE CONTAS.", "RELATÓRIO DE CONTAS A PAGAR POR PLANO DE CONTAS", "IMPECON2"},
    {"CONTAS A RECEBER POR PLANO DE CONTAS.", "RELATÓRIO DE CONTAS A RECEBER POR PLANO DE CONTAS", "IMPECON2"},
    {"CONTAS PAGAS POR PLANO DE CONTAS.", "RELATÓRIO DE CONTAS PAGAS POR PLANO DE CONTAS", "IMPECON2"},
    {"CONTAS RECEBIDAS POR PLANO DE CONTAS.", "RELATÓRIO DE CONTAS RECEBIDAS POR PLANO DE CONTAS", "IMPECON2"},
};

}  // namespace

const char* const kListed[8] = {kTexts[0].text, kTexts[1].text, kTexts[2].text, kTexts[3].text,
                                kTexts[4].text, kTexts[5].text, kTexts[6].text, kTexts[7].text};

const Variant* find_variant(std::string_view title, std::string_view option) {
  if (title.size() > kByPlan.size() && title.substr(title.size() - kByPlan.size()) == kByPlan)
    title.remove_suffix(kByPlan.size());
  for (const Variant& v : kVariants)
    if (title == v.title && (*v.option == '\0' || option == v.option)) return &v;
  return nullptr;
}

Choice choice_of(std::string_view text) {
  for (const Text& t : kTexts)
    if (text == t.text) return {t.title, t.screen};
  return {};
}

}  // namespace mz::finance::reports
