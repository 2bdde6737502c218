// Every report the screens name is shipped, reads, and prints what its work
// table holds: one realistic row of its table goes in, and the page's text
// must hold the values the report shows, formatted as the report shows them.
#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <utility>
#include <variant>

#include "print/page.h"
#include "print/report.h"
#include "print/template.h"
#include "store/database.h"
#include "store/names.h"
#include "store/shipped_reports.h"
#include "support/scratch_folder.h"

namespace mz::print {
namespace {

using Row = std::vector<std::pair<std::string, std::string>>;

const Date kToday = Date::from_ymd(2026, 3, 20);

struct Case {
  std::string report, data_file, table;
  Row row;
  std::vector<std::string> shown;
  std::string formula = "";
  std::vector<std::string> hidden = {};  // values the report must leave out
  std::string barcode = "";              // the code a label must carry
};

Row with(Row row, const Row& more) {
  row.insert(row.end(), more.begin(), more.end());
  return row;
}

std::vector<std::string> with_shown(std::vector<std::string> shown, const std::vector<std::string>& more) {
  shown.insert(shown.end(), more.begin(), more.end());
  return shown;
}

const Row kCustomerLine = {{"CODIGO", "0012"},         {"NOME", "JOSÉ CARLOS D'ÁVILA"},
                           {"APELIDO", "Zé"},          {"FONE", "(11) 98765-4321"},
                           {"CIDADE", "GUARULHOS SP"}, {"EMPRESA", "HOSPITAL SÃO LUIZ"},
                           {"TIPO", "CLASSIFICAÇÃO: CLIENTE"}, {"RUA", "RUA DAS ACÁCIAS 12 CENTRO"},
                           {"CEP", "07012-000"},       {"DATA", "07/03/1975"}};

const Row kAccount = {{"D2", "02/03/2026"},   {"D3", "02/04/2026"},     {"D4", "00001234"},
                      {"D5", "1234,56"},      {"D6", "ALUGUEL DA LOJA"}, {"D7", "BOLETO"},
                      {"D8", ""},             {"D9", "JOSÉ CARLOS D'ÁVILA"}, {"D10", "(11) 3333-4444"},
                      {"RELA", "RELATÓRIO DE CONTAS PAGAS - OPERAÇÃO."}, {"DI", "01/03/2026"},
                      {"DF", "31/03/2026"},   {"PG", "05/03/2026"},      {"VP", "1.234,56"},
                      {"DVP", "REC 77"},      {"TIPO", "CLIENTE: JOSÉ CARLOS D'ÁVILA"}};
const std::vector<std::string> kAccountShown = {"02/03/2026", "02/04/2026", "00001234", "1.234,56", "ALUGUEL DA LOJA",
                                                "BOLETO", "RELATÓRIO DE CONTAS PAGAS - OPERAÇÃO.", "01/03/2026 a 31/03/2026"};
const std::vector<std::string> kSettledShown = {"05/03/2026", "REC 77"};

const Row kReference = {{"GR", "0007"},     {"E1", "CALÇADOS"}, {"E2", "SANDÁLIA ANABELA COURO"},
                        {"E3", "F001-22"},  {"E4", "PRATELEIRA 3B"}, {"E5", "5"},
                        {"E7", "45,00"},    {"E9", "89,90"},    {"E11", "99,90"},
                        {"X1", "UN"},       {"X2", "6403.99.90"}};
const std::vector<std::string> kReferenceShown = {"0007", "SANDÁLIA ANABELA COURO", "F001-22", "PRATELEIRA 3B", "45,00",
                                                  "89,90", "99,90", "UN", "6403.99.90"};

const Row kStock = {{"GR", "0007"}, {"E2", "SANDÁLIA ANABELA COURO"}, {"E3", "F001-22"}, {"E7", "45,00"},
                    {"E1", "CALÇADOS"}, {"QTDA", "15"}};

const Row kMovement = {{"CODIGO", "00000031"}, {"NOME", "CONFECÇÕES ALFA LTDA"}, {"DATA", "10/03/2026"},
                       {"TIPO", "NF 4501"},    {"TOTAL", "2.345,60"},           {"REFERENCIA", "0007"},
                       {"QTDA", "12"},         {"VALOR", "45,9"},               {"ET", "SIM"}};
const std::vector<std::string> kMovementShown = {"00000031", "CONFECÇÕES ALFA LTDA", "10/03/2026", "NF 4501",
                                                 "2.345,60", "0007", "12", "45,90", "SIM"};

const Row kOrder = with(kMovement, {{"NR", "12"},
                                    {"TL", "550,80"},
                                    {"DES", "50,00"},
                                    {"EE5", "CARLOS REPRESENTAÇÕES"},
                                    {"B1", "(11) 3222-1000"},
                                    {"B3", "AV. SÃO JOÃO, 2200"},
                                    {"B5", "SÃO PAULO"},
                                    {"B9", "RUA DO COMÉRCIO, 10"},
                                    {"B14", "RUA DAS ENTREGAS, 99"},
                                    {"B19", "12.345.678/0001-90"},
                                    {"B21", "30/60/90 DIAS"},
                                    {"B22", "15 DIAS"},
                                    {"B23", "CONFERIR A GRADE"},
                                    {"B24", "ABERTO"}});

const Row kLabel = {{"CONTA", "1"},       {"CODIGO", "*000709*"},          {"TIPO", "0007.09.42"},
                    {"VALOR", "59,90"},   {"NOME", "CAMISA POLO PIQUET"}, {"NN", "MODAS SÃO JOSÉ"},
                    {"PRAZO", "69,90"},   {"DES", "CAMISA POLO PIQUET"},  {"V3", "23,30 = 69,90"}};

Case label(const std::string& report, std::vector<std::string> shown, std::vector<std::string> hidden = {}) {
  shown.push_back("*000709*");
  return {report, "BARRA.MDB", "BARRA", kLabel, shown, "", hidden, "000709"};
}

Row size_matrix() {
  Row row = {{"GRUPO", "CAMISARIA"}, {"X1", "0007"}, {"X2", "CAMISA SOCIAL SLIM"}, {"X3", "129,90"}, {"X4", "149,90"}};
  const char* captions[] = {"PP", "P", "M", "G", "GG", "XG", "XGG"};
  for (int i = 1; i <= 25; ++i) {
    row.emplace_back("A" + std::to_string(i), i <= 7 ? captions[i - 1] : std::to_string(30 + i));
    row.emplace_back("X" + std::to_string(i + 4), i == 3 ? "-3" : i == 7 ? "118" : "");
  }
  return row;
}

const std::vector<Case>& cases() {
  static const std::vector<Case> all = {
      {"R1.rpt", "Rela.MDB", "rela", kCustomerLine,
       {"JOSÉ CARLOS D'ÁVILA", "Zé", "(11) 98765-4321", "GUARULHOS SP", "HOSPITAL SÃO LUIZ", "Total de clientes: 1"}},
      {"R2.rpt", "Rela.MDB", "rela", kCustomerLine, {"CLASSIFICAÇÃO: CLIENTE", "JOSÉ CARLOS D'ÁVILA", "(11) 98765-4321"}},
      {"EMA.rpt", "Rela.MDB", "rela", kCustomerLine,
       {"CLASSIFICAÇÃO: CLIENTE", "JOSÉ CARLOS D'ÁVILA", "(11) 98765-4321", "GUARULHOS SP"}},
      {"R3.rpt", "Rela.MDB", "rela", kCustomerLine,
       {"JOSÉ CARLOS D'ÁVILA", "RUA DAS ACÁCIAS 12 CENTRO", "GUARULHOS SP", "CEP: 07012-000", "Cód. 0012"}},
      {"R4.rpt", "Rela.MDB", "rela", kCustomerLine,
       {"JOSÉ CARLOS D'ÁVILA", "RUA DAS ACÁCIAS 12 CENTRO", "GUARULHOS SP", "CEP: 07012-000"}},
      {"R4x.rpt", "Rela.MDB", "rela", kCustomerLine,
       {"Prezado(a) JOSÉ CARLOS D'ÁVILA,", "RUA DAS ACÁCIAS 12 CENTRO", "GUARULHOS SP", "CEP: 07012-000"}},
      {"INDI.rpt", "CADA.MDB", "CADA",
       {{"CODIGO", "0012"},        {"A1", "MARIA DA CONCEIÇÃO GONÇALVES"}, {"A3", "15/08/2019"},
        {"A4", "(11) 98765-4321"}, {"A9", "AV. FARIA LIMA, 3477"},        {"A11", "ITAIM BIBI"},
        {"A12", "SÃO PAULO"},      {"A13", "SP"},                           {"A14", "04538-133"},
        {"A24", "12345678909"},    {"A25", "12.345.678-9"},                 {"A26", "CLIENTE"},
        {"A27", "JOSÉ D'ÁVILA"},   {"A30", "(11) 3333-4444"},               {"A28", "ANTÔNIA PÊSSOA"},
        {"A29", "(11) 2222-1111"}, {"A31", "3.500,00"},                     {"A34", "07/03/1975"},
        {"A36", "Prefere contato à tarde."}, {"D1", "HOSPITAL SÃO LUIZ"},  {"D2", "RUA DR. ALCEU, 95"},
        {"D3", "(11) 3040-1100"},  {"D5", "maria@exemplo.com.br"},          {"D7", "BELO HORIZONTE - MG"},
        {"D8", "JOÃO GONÇALVES"},  {"D16", "NÃO"},                          {"D17", "SEBASTIÃO FERREIRA"},
        {"D18", "APARECIDA FERREIRA"}},
       {"0012", "MARIA DA CONCEIÇÃO GONÇALVES", "15/08/2019", "(11) 98765-4321", "AV. FARIA LIMA, 3477", "ITAIM BIBI",
        "SÃO PAULO", "SP", "04538-133", "12345678909", "12.345.678-9", "CLIENTE", "JOSÉ D'ÁVILA", "(11) 3333-4444",
        "ANTÔNIA PÊSSOA", "(11) 2222-1111", "3.500,00", "07/03/1975", "Prefere contato à tarde.", "HOSPITAL SÃO LUIZ",
        "RUA DR. ALCEU, 95", "(11) 3040-1100", "maria@exemplo.com.br", "BELO HORIZONTE - MG", "JOÃO GONÇALVES", "NÃO",
        "SEBASTIÃO FERREIRA", "APARECIDA FERREIRA"},
       "{CADA.CODIGO} = '0012'"},
      {"telefone.rpt", "TELEFONE.MDB", "telefone",
       {{"ID", "000001"}, {"A1", "ANA PAULA SANT'ANA"}, {"A2", "Aninha"}, {"A3", "07/03"}, {"A4", "Madrinha"},
        {"A5", "(11) 98000-1000"}, {"A6", "(11) 3200-4000"}, {"A7", "Recado"}, {"A8", "(11) 4000-1234"},
        {"A9", "(11) 4000-5678"}, {"A10", "ana@loja.com.br"}, {"A15", "GUARULHOS"}},
       {"ANA PAULA SANT'ANA", "Aninha", "07/03", "Madrinha", "(11) 98000-1000", "(11) 3200-4000", "Recado",
        "(11) 4000-1234", "(11) 4000-5678", "ana@loja.com.br", "GUARULHOS", "Total de contatos: 1"}},
      {"RECI.rpt", "reci.MDB", "RECI",
       {{"CODIGO", "00007"}, {"R2", "LÚCIA BRAGANÇA"}, {"R3", "12345678909"}, {"R4", "10/03/2026"},
        {"R5", "RUA JOAQUIM NABUCO, 150"}, {"R6", "VILA MARIANA"}, {"R7", "SÃO PAULO"}, {"R8", "SP"},
        {"R9", "1234,56"}, {"R10", "( Cem reais. )."}, {"R11", "PARCELA 2 DO CARNÊ"}, {"R12", "ITAÚ / 000851"},
        {"R13", "FERNANDA SANTOS"}, {"R15", "MODAS SÃO JOSÉ"}, {"R16", "(11) 4567-8901"},
        {"R17", "RUA DAS ACÁCIAS, 1234"}, {"R18", "SÃO PAULO - SP"}, {"R19", "CNPJ 12.345.678/0001-90"}},
       {"Nº 00007", "R$ 1.234,56", "Recebemos de: LÚCIA BRAGANÇA", "CNPJ/CPF: 12345678909",
        "RUA JOAQUIM NABUCO, 150", "VILA MARIANA", "SÃO PAULO/SP", "A importância de ( Cem reais. ).",
        "Referente a: PARCELA 2 DO CARNÊ", "ITAÚ / 000851", "Data: 10/03/2026", "FERNANDA SANTOS", "MODAS SÃO JOSÉ",
        "(11) 4567-8901", "RUA DAS ACÁCIAS, 1234", "SÃO PAULO - SP", "CNPJ 12.345.678/0001-90"},
       "{RECI.CODIGO} = '00007'"},
      {"Rreci.rpt", "reci.MDB", "RECI",
       {{"CODIGO", "00007"}, {"R2", "LÚCIA BRAGANÇA"}, {"R4", "10/03/2026"}, {"R9", "1234,56"},
        {"R11", "PARCELA 2 DO CARNÊ"}, {"R13", "FERNANDA SANTOS"}},
       {"00007", "10/03/2026", "LÚCIA BRAGANÇA", "PARCELA 2 DO CARNÊ", "FERNANDA SANTOS", "1.234,56"},
       "{reci.r4} >= Date ( 2026,3,1) and  {reci.r4} <= Date ( 2026,3,31)"},
      {"P1IMP.RPT", "P1IMP.MDB", "P1IMP",
       {{"CODi", "0001"}, {"A1", "15"}, {"A2", "MARÇO"}, {"A3", "2026"}, {"A4", "150,00 ( Cento e cinquenta reais. ) "},
        {"A5", "( Cento e cinquenta reais. ) "}, {"A6", "MODAS SÃO JOSÉ"}, {"A7", "JOSÉ CARLOS D'ÁVILA"},
        {"A8", "12345678909"}, {"A9", "RUA JOAQUIM NABUCO, 15"}, {"A10", "SÃO PAULO - SP"},
        {"A15", "SÃO PAULO, 10 DE MARÇO DE 2026."}},
       {"Nº 0001", "VENCIMENTO: 15 de MARÇO de 2026", "R$ 150,00 ( Cento e cinquenta reais. )",
        "a MODAS SÃO JOSÉ ou à sua ordem a quantia de ( Cento e cinquenta reais. )", "Emitente: JOSÉ CARLOS D'ÁVILA",
        "12345678909", "RUA JOAQUIM NABUCO, 15", "Pagável em: SÃO PAULO - SP", "SÃO PAULO, 10 DE MARÇO DE 2026."}},
      {"P2IMP.RPT", "P1IMP.MDB", "P1IMP",
       {{"CODi", "0001"}, {"A6", "MODAS SÃO JOSÉ"}, {"A7", "JOSÉ CARLOS D'ÁVILA"}, {"A11", "ANTÔNIO PÊSSOA"},
        {"A12", "98765432100"}, {"A14", "LÚCIA BRAGANÇA"}, {"A16", "11122233344"}, {"A17", "BANCO DO BRASIL S.A."},
        {"A18", "00000000000191"}, {"A19", "12345678000190"}},
       {"Por aval ao emitente JOSÉ CARLOS D'ÁVILA", "Nome: ANTÔNIO PÊSSOA", "98765432100", "Nome: LÚCIA BRAGANÇA",
        "11122233344", "Pague-se a BANCO DO BRASIL S.A., C.P.F. / CNPJ 00000000000191", "Endossante: MODAS SÃO JOSÉ",
        "12345678000190"}},
      {"DP.rpt", "DP.MDB", "DP",
       {{"CODIGO", "00042"}, {"A2", "001234"}, {"A3", "5678,9"}, {"A4", "2839,45"}, {"A5", "30/04/2026"},
        {"A6", "2%"}, {"A7", "20/04/2026"}, {"A8", "EM CARTEIRA"}, {"A9", "CONFECÇÕES ALFA LTDA"},
        {"A10", "AV. SÃO JOÃO, 2200"}, {"A11", "SÃO PAULO - SP"}, {"A12", "01260-000"}, {"A13", "SÃO PAULO"},
        {"A14", "12.345.678/0001-90"}, {"A15", "123.456.789"}, {"A16", "(Dois mil reais.)"}, {"A17", "(11) 3222-1000"},
        {"R15", "MODAS SÃO JOSÉ"}, {"R16", "(11) 4567-8901"}, {"R17", "RUA DAS ACÁCIAS, 1234"}, {"R18", "SÃO PAULO"}},
       {"00042", "001234", "5.678,90", "2.839,45", "30/04/2026", "2%", "20/04/2026", "EM CARTEIRA",
        "CONFECÇÕES ALFA LTDA", "AV. SÃO JOÃO, 2200", "SÃO PAULO - SP", "01260-000", "12.345.678/0001-90",
        "123.456.789", "(Dois mil reais.)", "(11) 3222-1000", "MODAS SÃO JOSÉ", "(11) 4567-8901",
        "RUA DAS ACÁCIAS, 1234"},
       "{DP.CODIGO} = '00042'"},
      {"CARNE.RPT", "IMCARNE.MDB", "carne",
       {{"Empresa", "05- Carnê"}, {"CLIENTE", "MARIA GONÇALVES"}, {"Compra", "1.234,56"}, {"PGTO", "CREDIÁRIO"},
        {"PARCELA", "1/3"}, {"VENC", "10/04/2026"}, {"VLRPARCELA", "411,52"}, {"NUMPARCELA", "1"}},
       {"MARIA GONÇALVES", "1.234,56", "CREDIÁRIO", "1/3", "10/04/2026", "411,52"}},
      {"impeven.rpt", "impeven.MDB", "impeven",
       {{"X1", "MODAS SÃO JOSÉ"}, {"NR", "00001234"}, {"DATA", "10/03/2026"}, {"w2", "10,00"}, {"w3", "169,80"},
        {"nome", "JOSÉ CARLOS D'ÁVILA"}, {"ven", "FERNANDA"}, {"k4", "CARTÃO DE CRÉDITO"}, {"P1", "2"},
        {"P2", ">000709-CAMISA POLO"}, {"P3", "G"}, {"P4", "89,90"}, {"P5", "179,80"}},
       {"00001234", "10/03/2026", "JOSÉ CARLOS D'ÁVILA", "Vendedor: FERNANDA", "CARTÃO DE CRÉDITO", "Desconto: 10,00",
        "Total da venda: 169,80", ">000709-CAMISA POLO", "89,90", "179,80"}},
      {"ver.rpt", "VER.MDB", "ver",
       {{"A2", "20/03/2026"}, {"nome", "Relatório de vendas do vendedor: FERNANDA"}, {"A1", "00001234"},
        {"A3", "359,40"}, {"A4", "JOSÉ CARLOS D'ÁVILA"}, {"A5", "FERNANDA"}, {"A6", "PIX"}},
       {"Relatório de vendas do vendedor: FERNANDA", "00001234", "359,40", "JOSÉ CARLOS D'ÁVILA", "FERNANDA", "PIX",
        "Total de vendas: 1"}},
      {"R22V.rpt", "Rela14.MDB", "Rela14",
       {{"CODIGO", "0007"}, {"NOME", "CAMISA POLO PIQUET-G"}, {"VALOR", "1.079,40"}, {"EMPE", "MODAS"},
        {"Vendedor", "FERNANDA"}, {"DI", "01/03/2026"}, {"DF", "31/03/2026"}, {"A1", "12"}, {"E7", "45,00"},
        {"V3", "89,95"}, {"A2", "540,00"}, {"A3", "539,40"}, {"A4", "49,97"}, {"A5", "99,89"}},
       {"0007", "CAMISA POLO PIQUET-G", "1.079,40", "Vendedor: FERNANDA", "01/03/2026 a 31/03/2026", "12", "45,00",
        "89,95", "540,00", "539,40", "49,97", "99,89"}},
      {"cximpe.rpt", "Rela2cx.MDB", "Rela2",
       {{"CODIGO", "0002001"}, {"A1", "10/03/2026"}, {"hora", "18:35"}, {"A2", "Débito"}, {"A3", "00001234"},
        {"A4", "Forma: PIX"}, {"A6", "VENDA BALCÃO 00001234"}, {"limi", "1.234,50"}, {"SALDO", "1.234,50"},
        {"NOME", "FERNANDA"}, {"DE", "150,5"}, {"L", "D"}},
       {"0002001", "10/03/2026", "18:35", "Débito", "00001234", "Forma: PIX", "VENDA BALCÃO 00001234",
        "Saldo do caixa: 1.234,50", "150,50"}},
      {"rela11.rpt", "rela10.MDB", "rela",
       {{"Codigo", "1"}, {"DI", "01/01/1900"}, {"DF", "30/12/2099"}, {"TIPO", "JOSÉ CARLOS D'ÁVILA"},
        {"VENC", "01/04/2026"}, {"DOC", "00001234"}, {"VALOR", "150,00"}, {"VL", "1.230,45"}, {"CONTROLE", "000300"},
        {"HISTO", "VENDA BALCÃO"}},
       {"JOSÉ CARLOS D'ÁVILA", "01/01/1900 a 30/12/2099", "01/04/2026", "00001234", "150,00", "1.230,45", "000300",
        "VENDA BALCÃO", "Totais: 1 conta(s)"}},
      {"rela12.rpt", "rela10.MDB", "rela",
       {{"Codigo", "1"}, {"DI", "01/01/1900"}, {"DF", "30/12/2099"}, {"TIPO", "JOSÉ CARLOS D'ÁVILA"},
        {"VENC", "01/04/2026"}, {"DOC", "00001234"}, {"VALOR", "0,00"}, {"VL", "1.230,45"}, {"CONTROLE", "000300"},
        {"HISTO", "VENDA BALCÃO"}},
       {"JOSÉ CARLOS D'ÁVILA", "01/04/2026", "00001234", "1.230,45", "000300", "VENDA BALCÃO"}},
      {"R6.rpt", "Rela3.MDB", "Rela3", kAccount, with_shown(kAccountShown, {"JOSÉ CARLOS D'ÁVILA", "(11) 3333-4444"})},
      {"R66.rpt", "Rela3.MDB", "Rela3", kAccount, with_shown(kAccountShown, {"JOSÉ CARLOS D'ÁVILA", "(11) 3333-4444"})},
      {"R7.rpt", "Rela3.MDB", "Rela3", kAccount, with_shown(kAccountShown, kSettledShown)},
      {"R77.rpt", "Rela3.MDB", "Rela3", kAccount, with_shown(kAccountShown, kSettledShown)},
      {"R777.rpt", "Rela3.MDB", "Rela3", kAccount, with_shown(kAccountShown, kSettledShown)},
      {"R7X.rpt", "Rela3.MDB", "Rela3", kAccount, with_shown(kAccountShown, {"Pagamentos de 05/03/2026", "REC 77"})},
      {"R12.rpt", "Rela3.MDB", "Rela3", kAccount, with_shown(kAccountShown, {"CLIENTE: JOSÉ CARLOS D'ÁVILA"})},
      {"R13.rpt", "Rela3.MDB", "Rela3", kAccount,
       with_shown(kAccountShown, {"CLIENTE: JOSÉ CARLOS D'ÁVILA", "05/03/2026", "REC 77"})},
      {"TMP2.rpt", "TMP2.MDB", "TMP2",
       {{"DI", "01/03/2026"}, {"DF", "31/03/2026"}, {"A1", " >FERNANDA SANTOS"}, {"A2", "12.345,60"}, {"A3", "3"},
        {"A4", "370,37"}},
       {"01/03/2026 a 31/03/2026", ">FERNANDA SANTOS", "12.345,60", "3", "370,37"}},
      {"TMP12.rpt", "TMP12.MDB", "TMP12", size_matrix(),
       {"CAMISARIA", "0007", "CAMISA SOCIAL SLIM", "129,90", "149,90", "PP", "XGG", "55", "-3", "118"}},
      {"bala.rpt", "bala.mdb", "bala",
       {{"A1", "1"}, {"A2", "3"}, {"A3", "2"}, {"A4", ">0007-CALÇA JEANS SKINNY"}, {"A5", "38"}},
       {">0007-CALÇA JEANS SKINNY 38 3 1 2", "Total das diferenças: 1 linha(s) 2"}},
      {"entra.rpt", "entra.mdb", "ENTRA", kMovement, kMovementShown, "{entra.nome} = 'CONFECÇÕES ALFA LTDA'"},
      {"sai.rpt", "sai.mdb", "ENTRA", kMovement, kMovementShown, "{entra.nome} = 'CONFECÇÕES ALFA LTDA'"},
      {"PEDIDO.rpt", "SAI.mdb", "ENTRA", kOrder,
       {"Pedido Nr.: NF 4501", "00000031", "10/03/2026", "ABERTO", "Cliente: CONFECÇÕES ALFA LTDA",
        "12.345.678/0001-90", "(11) 3222-1000", "CARLOS REPRESENTAÇÕES", "AV. SÃO JOÃO, 2200", "SÃO PAULO",
        "RUA DO COMÉRCIO, 10", "RUA DAS ENTREGAS, 99", "30/60/90 DIAS", "15 DIAS", "CONFERIR A GRADE", "0007 12 45,90",
        "Total de peças: 12", "Total dos produtos: 550,80", "Desconto: 50,00", "Total do pedido: 2.345,60"},
       "{ENTRA.CODIGO} = '00000031'"},
      {"PEDIDO2.rpt", "SAI.mdb", "ENTRA", kOrder,
       {"Pedido Nr.: NF 4501", "00000031", "10/03/2026", "ABERTO", "Cliente: CONFECÇÕES ALFA LTDA",
        "CARLOS REPRESENTAÇÕES", "15 DIAS", "0007 12 45,90", "Peças: 12", "Total dos produtos: 550,80",
        "Desconto: 50,00", "Total do pedido: 2.345,60"},
       "{ENTRA.CODIGO} = '00000031'"},
      {"E1.rpt", "REFE.mdb", "GRUPO", kReference, with_shown(kReferenceShown, {"CALÇADOS", "Total de referências: 1"})},
      {"E2.rpt", "REFE.mdb", "GRUPO", kReference, with_shown(kReferenceShown, {"CALÇADOS"})},
      {"E3.rpt", "REFE.mdb", "GRUPO", kReference, with_shown(kReferenceShown, {"Grupo: CALÇADOS"}),
       "{grupo.e1} = 'CALÇADOS'"},
      {"E3X.rpt", "REFE.mdb", "GRUPO", kReference,
       with_shown(kReferenceShown, {"Código do fornecedor: F001-22", "CALÇADOS"}), "{grupo.e3} = 'F001-22'"},
      {"E4.rpt", "IMESTO.mdb", "A1", with(kStock, {{"RESU", "675"}}),
       {"0007 SANDÁLIA ANABELA COURO CALÇADOS F001-22 45,00 15 675,00", "Totais: 1 referência(s) 15 675,00"}},
      {"E5.rpt", "IMESTO.mdb", "A1", with(kStock, {{"RESU", "675"}}),
       {"Grupo: CALÇADOS", "0007 SANDÁLIA ANABELA COURO F001-22 45,00 15 675,00",
        "Total do grupo: 1 referência(s) 15 675,00"}},
      {"E6.rpt", "IMESTO.mdb", "A1", with(kStock, {{"RESU", "20"}}),
       {"0007 SANDÁLIA ANABELA COURO CALÇADOS F001-22 45,00 15 20", "Referências a comprar: 1"}},
      label("BARRA2.rpt", {"CAMISA POLO PIQUET", "0007.09.42", "R$ 59,90"}),
      label("BARRA2X.rpt", {"CAMISA POLO PIQUET", "0007.09.42"}, {"59,90"}),
      label("BARRA4.rpt", {"MODAS SÃO JOSÉ", "CAMISA POLO PIQUET", "0007.09.42", "R$ 59,90", "ou 3 x 23,30 = 69,90"}),
      label("BARRA5.rpt", {"MODAS SÃO JOSÉ", "CAMISA POLO PIQUET", "0007.09.42", "R$ 59,90", "R$ 69,90"}),
      label("BARRA30.rpt", {"MODAS SÃO JOSÉ", "CAMISA POLO PIQUET", "0007.09.42", "À vista R$ 59,90", "A prazo R$ 69,90"}),
      label("BARRA3.rpt", {"CAMISA POLO PIQUET", "0007.09.42", "R$ 59,90"}),
      label("BARRA3X.rpt", {"CAMISA POLO PIQUET", "0007.09.42"}, {"59,90"}),
      label("BARRA3P.rpt", {"CAMISA POLO PIQUET", "0007.09.42", "R$ 59,90"}),
      label("BARRA3XP.rpt", {"CAMISA POLO PIQUET", "0007.09.42"}, {"59,90"}),
      label("BARRA65.rpt", {"CAMISA POLO PIQUET", "0007.09.42", "R$ 59,90"}),
  };
  return all;
}

void insert(const std::string& data_file, const std::string& table, const Row& row) {
  store::Recordset rs = store::Workspace::open_database("\\" + data_file).open_recordset("Select * From " + table);
  rs.add_new();
  for (const auto& [column, value] : row) rs[column] = Value(value);
  rs.update();
}

// The document's text: each page's lines, and wrapped lines joined again.
std::string document_text(const Document& doc) {
  std::string text;
  for (const Page& page : doc.pages)
    for (const std::string& line : page_text(page)) text += line + " ";
  return text;
}

std::vector<std::string> document_lines(const Document& doc) {
  std::vector<std::string> lines;
  for (const Page& page : doc.pages)
    for (const std::string& line : page_text(page)) lines.push_back(line);
  return lines;
}

std::optional<std::string> shipped_text(const std::string& name) {
  for (const auto& shipped : store::shipped_reports())
    if (name == shipped.name) return shipped.text;
  return std::nullopt;
}

TEST(PrintTemplates, EveryShippedTemplateIsOneTheScreensNameAndEachIsShipped) {
  std::set<std::string> expected, shipped;
  for (const Case& c : cases()) expected.insert(c.report);
  for (const auto& s : store::shipped_reports())
    if (std::string(s.name) != "README.md") shipped.insert(s.name);
  EXPECT_EQ(expected.size(), 52u);
  EXPECT_EQ(shipped, expected);
}

TEST(PrintTemplates, EachPrintsTheValuesOfItsRow) {
  for (const Case& c : cases()) {
    SCOPED_TRACE(c.report);
    std::optional<std::string> text = shipped_text(c.report);
    ASSERT_TRUE(text) << "not shipped";
    Template t = parse_template(*text, c.report);
    EXPECT_TRUE(store::same_name(t.table, c.table));
    EXPECT_TRUE(store::same_name(t.data_file, c.data_file));

    testing::ScratchFolder folder;
    insert(c.data_file, c.table, c.row);
    Document doc = run_report({"\\" + c.data_file, c.formula, "\\" + c.report, Destination::Window, std::nullopt}, kToday);
    ASSERT_FALSE(doc.pages.empty());
    const std::string printed = document_text(doc);
    if (t.kind == Template::Kind::List) {
      EXPECT_NE(printed.find(t.title), std::string::npos) << "the list's heading";
    }
    for (const std::string& value : c.shown) EXPECT_NE(printed.find(value), std::string::npos) << value << "\n" << printed;
    for (const std::string& value : c.hidden) EXPECT_EQ(printed.find(value), std::string::npos) << value;

    std::vector<std::string> codes;
    for (const Item& item : doc.pages.front().items)
      if (const auto* bar = std::get_if<BarcodeItem>(&item)) {
        codes.push_back(bar->data);
        EXPECT_GE(bar->width, 30.0) << "wide enough to scan";
        EXPECT_GE(bar->height, 7.0);
      }
    EXPECT_EQ(codes, c.barcode.empty() ? std::vector<std::string>{} : std::vector<std::string>{c.barcode});
  }
}

TEST(PrintTemplates, AGroupedListAddsUpEachGroupAndTheWhole) {
  testing::ScratchFolder folder;
  struct Stock {
    const char *gr, *group, *qtda, *resu;
  };
  // Out of order on purpose: the report sorts by group, then reference.
  for (const Stock& s : {Stock{"0003", "JEANS", "10", "450"}, Stock{"0001", "CALÇADOS", "3", "135"},
                         Stock{"0002", "CALÇADOS", "-1", "-45"}, Stock{"0004", "ACESSÓRIOS", "0", "0"}})
    insert("IMESTO.mdb", "A1",
           {{"GR", s.gr}, {"E2", "PRODUTO " + std::string(s.gr)}, {"E3", "F1"}, {"E7", "45,00"}, {"E1", s.group},
            {"QTDA", s.qtda}, {"RESU", s.resu}});
  Document doc = run_report({"\\IMESTO.mdb", "", "\\E5.rpt", Destination::Window, std::nullopt}, kToday);
  std::vector<std::string> lines = document_lines(doc);
  std::vector<std::string> body;
  bool after_captions = false;
  for (const std::string& line : lines) {
    if (after_captions) body.push_back(line);
    if (line.rfind("Ref. ", 0) == 0) after_captions = true;
  }
  const std::vector<std::string> expected = {
      "Grupo: ACESSÓRIOS",
      "0004 PRODUTO 0004 F1 45,00 0 0,00",
      "Total do grupo: 1 referência(s) 0 0,00",
      "Grupo: CALÇADOS",
      "0001 PRODUTO 0001 F1 45,00 3 135,00",
      "0002 PRODUTO 0002 F1 45,00 -1 -45,00",  // a negative balance lowers the totals
      "Total do grupo: 2 referência(s) 2 90,00",
      "Grupo: JEANS",
      "0003 PRODUTO 0003 F1 45,00 10 450,00",
      "Total do grupo: 1 referência(s) 10 450,00",
      "Total geral: 4 referência(s) 12 540,00",
  };
  EXPECT_EQ(body, expected);
}

}  // namespace
}  // namespace mz::print
