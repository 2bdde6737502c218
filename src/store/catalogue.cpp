// The files of the data folder: every table with its columns in the order the
// screens fill them, the types as the statements use them, the indexes that
// keep the ledgers and the key look-ups cheap, and the rows a new shop starts
// with. Types follow use: money kept as screen text is Text, money that is
// summed or compared by the engine is Currency or Number, and a column
// compared with # literals is Date.
#include "store/catalogue.h"

#include <unordered_map>

#include "store/names.h"

namespace mz::store {

namespace {

Columns named(std::initializer_list<const char*> names, ColumnType type) {
  Columns out;
  out.reserve(names.size());
  for (const char* n : names) out.push_back({n, type});
  return out;
}

// The last component of a path written with either kind of separator.
std::string_view base_name(std::string_view s) {
  const auto cut = s.find_last_of("\\/");
  return cut == std::string_view::npos ? s : s.substr(cut + 1);
}

// A one-column option list, delivered with the given items.
TableDef list_table(const char* table, const char* column, std::initializer_list<const char*> items) {
  TableDef t{table, text({column}), {}, {}};
  for (const char* item : items) {
    Row row;
    row.emplace_back(column, item);
    t.rows.push_back(std::move(row));
  }
  return t;
}

// A row that names every column of a table: the given values, and empty text
// for the rest, so that nothing reads back as null.
Row full_row(const Columns& columns, std::initializer_list<std::pair<const char*, const char*>> values) {
  Row row;
  for (const ColumnDef& c : columns) {
    std::string value;
    for (const auto& [name, v] : values)
      if (same_name(name, c.name)) value = v;
    row.emplace_back(c.name, value);
  }
  return row;
}

// The movement ledgers of goods in and goods out share these columns; the
// code that posts stock relies on the two files being alike.
Columns ledger_columns() {
  return text({"CODIGO", "NOME"}) + date({"DATA"}) + text({"TIPO", "TOTAL", "REFERENCIA"}) +
         slots("X", 1, 50, ColumnType::Number) + number({"QTDA"}) + currency({"VALOR"}) + text({"ET"});
}

// Balance queries sum the slots of one reference or of a group of them: the
// slot quantities ride in the reference's index, so those sums never visit
// the rows, which lie scattered in the order they were recorded. The
// whole-reference lists group by reference over the piece count; documents
// are found by number; the summary reports select a supplier's or customer's
// rows by name.
std::vector<std::string> ledger_indexes() {
  std::string slots_by_reference = "REFERENCIA";
  for (int n = 1; n <= 50; ++n) slots_by_reference += ",X" + std::to_string(n);
  return {slots_by_reference, "REFERENCIA,QTDA", "CODIGO", "DATA", "NOME"};
}

// The customer card, in the order of the card; also the shape of the scratch
// copy that the import reads.
Columns customer_columns() {
  return text({"CODIGO", "A1", "A3", "A4", "A9", "A11", "A12", "A13", "A14", "A23", "A24", "A25",
               "A26", "A27", "A30", "A28", "A29", "A31", "A34", "A36", "D1", "D2", "D3", "D5", "D7",
               "D8", "D16", "D17", "D18", "A2"}) +
         slots("A", 5, 8, ColumnType::Text) + text({"A10"}) + slots("A", 15, 22, ColumnType::Text) +
         text({"A32", "A35", "A38", "D4", "D6"}) + slots("D", 9, 15, ColumnType::Text) +
         slots("A", 39, 42, ColumnType::Text) +
         // The import copies A1 to A36 one by one, so A33 is there too.
         text({"A33"});
}

// One common grid for clothing and footwear: letter sizes, a one-size slot,
// children's numbers, then one slot per number from the smallest shoe to the
// largest adult garment, so that no label stands twice.
TableDef size_grid() {
  TableDef t{"GRADE", slots("A", 1, 50, ColumnType::Text), {}, {}};
  const char* labels[] = {"PP", "P",  "M",  "G",  "GG", "XG", "XGG", "U",  "1",  "2",  "3",  "4",
                          "6",  "8",  "10", "12", "14", "16", "33",  "34", "35", "36", "37", "38",
                          "39", "40", "41", "42", "43", "44", "46",  "48", "50", "52", "54", "56"};
  Row row;
  for (int n = 1; n <= 50; ++n) {
    const std::size_t i = static_cast<std::size_t>(n - 1);
    row.emplace_back("A" + std::to_string(n), i < std::size(labels) ? labels[i] : "");
  }
  t.rows.push_back(std::move(row));
  return t;
}

std::vector<FileDef> build() {
  std::vector<FileDef> files;

  // Option lists. Payment forms are kept in capitals by the sale screen.
  files.push_back({"A1.mdb", "", {list_table("A1", "A1", {"DINHEIRO", "CHEQUE", "CARTÃO DE CRÉDITO",
                                                           "CARTÃO DE DÉBITO", "CREDIÁRIO", "PIX"})}});
  // The second list of the day closing; it has no screen, so it comes filled.
  files.push_back({"A2.mdb", "", {list_table("A1", "A1", {"BALCÃO"})}});

  // Stocktake count lines, all kept as text.
  files.push_back({"BALA.MDB", "", {{"BALA", text({"A1", "A2", "A3", "A4", "A5"}), {}, {}}}});
  // Bank accounts: only ever emptied; a key column gives the table a shape.
  files.push_back({"BAN.MDB", "", {{"BAN", text({"CODIGO"}), {}, {}}}});
  // One row per label to print.
  files.push_back({"BARRA.MDB", "",
                   {{"BARRA",
                     number({"CONTA"}) + text({"CODIGO", "TIPO", "VALOR", "NOME", "NN", "PRAZO", "DES", "V3"}),
                     {},
                     {}}}});

  files.push_back({"C3.Mdb", "", {list_table("A1", "A1", {"CLIENTE", "FORNECEDOR", "REPRESENTANTE"})}});
  // The chart of accounts has no screen that reaches it, so it comes filled.
  files.push_back({"C6.Mdb", "",
                   {list_table("A1", "A1",
                               {"ALUGUEL", "COMISSÕES", "CONTA DE ÁGUA", "DESPESAS DIVERSAS",
                                "ENCARGOS SOCIAIS", "ENERGIA ELÉTRICA", "FORNECEDORES", "FRETES",
                                "HONORÁRIOS CONTÁBEIS", "IMPOSTOS E TAXAS", "MANUTENÇÃO",
                                "MATERIAL DE ESCRITÓRIO", "MATERIAL DE LIMPEZA", "PRÓ-LABORE",
                                "PUBLICIDADE E PROPAGANDA", "RECEBIMENTO DE CLIENTES",
                                "RECEITAS DIVERSAS", "RETIRADA DOS SÓCIOS", "SALÁRIOS",
                                "TARIFAS BANCÁRIAS", "TELEFONE E INTERNET", "VENDAS"})}});
  files.push_back({"C7.Mdb", "", {list_table("A1", "A1", {})}});
  files.push_back({"C8.Mdb", "", {list_table("A1", "A1", {})}});

  // Customers; looked up by code and by name.
  // Customers are found by code and by name, and checked for duplicates by
  // phone, CNPJ, CPF and the first reference's name.
  files.push_back({"CADA.MDB", "", {{"CADA", customer_columns(), {"CODIGO", "A1", "A4", "A23", "A24", "A27"}, {}}}});
  files.push_back({"Cadax.Mdb", "", {{"CADA", customer_columns(), {}, {}}}});

  // Cash book: the date is compared with # literals, the value is summed.
  files.push_back({"Caixa.Mdb", "",
                   {{"Cada",
                     text({"codigo"}) + date({"A1"}) + text({"A2", "A3", "A4"}) + number({"A5"}) +
                         text({"A6", "PLANO", "NOME"}),
                     {"codigo", "A1", "A2,A5"},
                     {}}}});

  // Access passwords: the one protected file. Empty module passwords leave
  // every module open; the main password lets the owner set the others.
  {
    Columns cols = text({"CODIGO"}) + slots("A", 1, 11, ColumnType::Text) + text({"A19", "A20"});
    Row row = full_row(cols, {{"CODIGO", "1"}, {"A1", "MOSTRUZ"}});
    files.push_back({"CDSE.Mdb", "604215", {{"CDSEN", cols, {}, {row}}}});
  }

  // Payables and receivables. VP is text: the sale writes the caption of the
  // second size slot into it, which need not be a number.
  files.push_back({"Contas.Mdb", "",
                   {{"Cada",
                     text({"CODIGO", "D1"}) + date({"D2", "D3"}) + text({"D4"}) + currency({"D5"}) +
                         text({"D6", "D7", "D8", "D9", "D10", "NOME", "GRUPO", "BX"}) + date({"PG"}) +
                         text({"VP", "DVP"}) + number({"G1", "G2"}) + currency({"G3"}),
                     {"CODIGO", "D3", "D2", "D9,BX,D1", "D4", "BX,D1,D3,CODIGO"},
                     {}}}});

  // Dependants, linked to the customer by name.
  files.push_back({"DEPE.MDB", "", {{"DEPE", text({"A1", "NOME", "DATA"}), {"A1"}, {}}}});

  // Trade bills.
  files.push_back({"DP.Mdb", "",
                   {{"DP",
                     text({"CODIGO", "A2"}) + currency({"A3", "A4"}) + date({"A5"}) +
                         slots("A", 6, 17, ColumnType::Text) + slots("R", 15, 20, ColumnType::Text),
                     {"CODIGO"},
                     {}}}});

  // Written at each account inclusion with the text "00/00/0000".
  files.push_back({"dt.Mdb", "", {{"Dt", text({"Dt"}), {}, {}}}});

  // Store identity, one row.
  {
    Columns cols = slots("A", 1, 6, ColumnType::Text) + text({"A10", "x10"});
    Row row = full_row(cols, {{"A1", "NOME DA LOJA"}, {"A10", "LPT1"}, {"x10", "VERDE"}});
    files.push_back({"EMPE.Mdb", "", {{"EMPE", cols, {}, {row}}}});
  }

  // Goods in.
  files.push_back({"ENTRA.MDB", "", {{"ENTRA", ledger_columns(), ledger_indexes(), {}}}});

  // Suppliers, their contacts, and the carriers.
  files.push_back({"FORNEX.MDB", "",
                   {{"CLI",
                     slots("a", 1, 11, ColumnType::Text) + slots("a", 14, 21, ColumnType::Text) +
                         text({"a24", "a34"}),
                     {"a1", "a2"},
                     {}}}});
  files.push_back({"FORNE2.Mdb", "", {{"CLI", text({"CD", "A1", "A2", "A3"}), {"CD"}, {}}}});
  // No screen writes the carriers, so the list comes with the one carrier
  // every shop in the country can use.
  files.push_back({"TRAN.mdb", "", {list_table("CLI", "a2", {"CORREIOS"})}});

  // Payment forms of the orders.
  files.push_back({"fp.mdb", "", {list_table("A1", "A1", {})}});

  files.push_back({"GRADE.Mdb", "", {size_grid()}});

  // Product groups; the accounts screen also looks a plan up here by the
  // code in A2.
  files.push_back({"GRUPO.mdb", "", {{"A1", text({"A1", "A2"}), {}, {}}}});

  // Booklet printing.
  files.push_back({"IMCARNE.MDB", "",
                   {{"carne",
                     text({"Empresa", "CLIENTE", "Compra", "PGTO", "PARCELA", "VENC", "VLRPARCELA"}) +
                         number({"NUMPARCELA"}),
                     {},
                     {}}}});

  // Stock report: the balance and, by report, a stock value or the minimum.
  files.push_back({"IMESTO.Mdb", "",
                   {{"A1", text({"GR", "E2", "E3", "E7", "E1"}) + number({"QTDA", "RESU"}), {}, {}}}});

  // Sale printing in A4, the printer paths, and the path chosen.
  files.push_back({"impeven.Mdb", "",
                   {{"impeven",
                     slots("X", 1, 6, ColumnType::Text) + text({"NR", "DATA", "w2", "w3", "nome", "ven", "k4"}) +
                         slots("P", 1, 5, ColumnType::Text),
                     {},
                     {}}}});
  files.push_back({"impeven1.mdb", "", {list_table("A1", "A1", {})}});
  // The screen rewrites the one row it expects to find.
  files.push_back({"impeven2.Mdb", "", {list_table("A1", "a1", {"Local"})}});

  files.push_back({"lay.Mdb", "", {list_table("lay", "lay", {"1"})}});

  // Label margins in twips, the report engine's unit: half an inch at the
  // top and bottom, a quarter inch at the sides.
  {
    Columns cols = text({"M1", "M2", "M3", "M4"});
    Row row = full_row(cols, {{"M1", "720"}, {"M2", "360"}, {"M3", "360"}, {"M4", "720"}});
    files.push_back({"MARGEM.Mdb", "", {{"MARGEM", cols, {}, {row}}}});
  }

  // Promissory note printing; there is no A13.
  files.push_back({"P1IMP.MDB", "",
                   {{"P1IMP",
                     text({"CODi"}) + slots("A", 1, 12, ColumnType::Text) + slots("A", 14, 19, ColumnType::Text),
                     {},
                     {}}}});

  // Receipts.
  files.push_back({"RECI.Mdb", "",
                   {{"RECI",
                     text({"CODIGO", "R2", "R3"}) + date({"R4"}) + slots("R", 5, 8, ColumnType::Text) +
                         currency({"R9"}) + slots("R", 10, 13, ColumnType::Text) +
                         slots("R", 15, 19, ColumnType::Text),
                     {"CODIGO"},
                     {}}}});

  // Product references; found by code, by supplier code, by description and
  // by group.
  files.push_back({"REFE.MDB", "",
                   {{"GRUPO",
                     text({"GR"}) + slots("E", 1, 13, ColumnType::Text) + text({"X1", "X2"}) +
                         slots("A", 1, 50, ColumnType::Text),
                     {"GR", "E1", "E2", "E3"},
                     {}}}});

  // Customer lists and letters; the letter keeps the birth date too.
  files.push_back({"Rela.MDB", "",
                   {{"rela",
                     text({"CODIGO", "NOME", "APELIDO", "FONE", "CIDADE", "EMPRESA", "TIPO", "RUA", "CEP",
                           "DATA"}),
                     {},
                     {}}}});
  // Accounts by party; every statement on this file names the table rela.
  files.push_back({"rela10.MDB", "",
                   {{"rela",
                     text({"Codigo", "DI", "DF", "TIPO", "VENC", "DOC", "VALOR", "VL", "CONTROLE", "HISTO"}),
                     {},
                     {}}}});
  // Account reports: copies of the account columns, with their types.
  files.push_back({"Rela3.MDB", "",
                   {{"Rela3",
                     date({"D2", "D3"}) + text({"D4"}) + currency({"D5"}) +
                         text({"D6", "D7", "D8", "D9", "D10", "EMPRESA", "RELA", "DI", "DF"}) + date({"PG"}) +
                         text({"VP", "DVP", "TIPO"}),
                     {},
                     {}}}});
  // Sales reports: products by seller, the summary, the ranking.
  files.push_back({"Rela14.MDB", "",
                   {{"Rela14",
                     text({"CODIGO", "NOME", "VALOR", "EMPE", "Vendedor", "DI", "DF", "A1", "E7", "V3", "A2",
                           "A3", "A4", "A5"}),
                     {},
                     {}}}});
  files.push_back({"ver.MDB", "", {{"ver", text({"A2", "nome", "A1", "A3", "A4", "A5", "A6"}), {}, {}}}});
  files.push_back({"TMPK.MDB", "", {{"tmp", text({"A1", "A2", "A3"}), {}, {}}}});

  // Cash day list: date and amounts copied from the cash book as they are.
  files.push_back({"Rela2cx.MDB", "",
                   {{"Rela2",
                     text({"CODIGO"}) + date({"A1"}) + text({"hora", "A2", "A3", "A4", "A6", "limi", "SALDO", "NOME"}) +
                         number({"DE", "CR"}) + text({"L"}),
                     {},
                     {}}}});

  // Goods out and orders: the ledger columns, then the order header that
  // the order screen repeats on every row.
  files.push_back({"SAI.MDB", "",
                   {{"ENTRA",
                     ledger_columns() + text({"NR", "TL", "DES", "EE5"}) + slots("B", 1, 24, ColumnType::Text) +
                         slots("A", 1, 50, ColumnType::Text),
                     ledger_indexes(),
                     {}}}});

  // Employees; the commission per cent is kept as typed. The card's last
  // caption, CBO, has a column of its own after the fifteen free ones.
  files.push_back({"SALA.Mdb", "",
                   {{"SALA",
                     text({"X1", "X2", "X4", "X9", "X10", "X11", "X3"}) + slots("X", 5, 8, ColumnType::Text) +
                         slots("X", 12, 22, ColumnType::Text),
                     {"X1", "X2"},
                     {}}}});

  files.push_back({"TELEFONE.MDB", "",
                   {{"TELEFONE", text({"ID"}) + slots("A", 1, 16, ColumnType::Text), {"ID", "A1"}, {}}}});

  // Stock by group: report fields, all text.
  files.push_back({"TMP12.MDB", "",
                   {{"TMP12",
                     text({"GRUPO"}) + slots("A", 1, 25, ColumnType::Text) + slots("X", 1, 29, ColumnType::Text),
                     {},
                     {}}}});
  // Commissions.
  files.push_back({"TMP2.MDB", "", {{"TMP2", text({"DI", "DF", "A1", "A2", "A3", "A4"}), {}, {}}}});

  // Sold lines: the third stock ledger.
  files.push_back({"VENDA.Mdb", "",
                   {{"VENDA",
                     text({"CODIGO", "NOME"}) + date({"DATA"}) + text({"VENDEDOR", "PAGAMENTO"}) + number({"VALOR"}) +
                         text({"PARCELA"}) + number({"QTDA"}) + text({"REFERENCIA", "V1", "V2", "V3", "V4"}) +
                         slots("X", 1, 50, ColumnType::Number),
                     ledger_indexes(),
                     {}}}});
  // Closing data of each sale.
  files.push_back({"Venda1.Mdb", "",
                   {{"VENDA",
                     text({"CODIGO"}) + slots("W", 1, 6, ColumnType::Text) + date({"DATA"}) +
                         text({"VENDEDOR", "C1", "C2", "C3"}) + slots("K", 1, 5, ColumnType::Text),
                     {"CODIGO"},
                     {}}}});

  return files;
}

}  // namespace

Columns text(std::initializer_list<const char*> names) { return named(names, ColumnType::Text); }
Columns number(std::initializer_list<const char*> names) { return named(names, ColumnType::Number); }
Columns currency(std::initializer_list<const char*> names) { return named(names, ColumnType::Currency); }
Columns date(std::initializer_list<const char*> names) { return named(names, ColumnType::Date); }
Columns integer(std::initializer_list<const char*> names) { return named(names, ColumnType::Integer); }

Columns slots(const char* prefix, int first, int last, ColumnType type) {
  Columns out;
  for (int n = first; n <= last; ++n) out.push_back({std::string(prefix) + std::to_string(n), type});
  return out;
}

Columns operator+(Columns a, const Columns& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

const std::vector<FileDef>& catalogue() {
  static const std::vector<FileDef> files = build();
  return files;
}

const FileDef* find_file(std::string_view name) {
  static const std::unordered_map<std::string, const FileDef*> by_name = [] {
    std::unordered_map<std::string, const FileDef*> map;
    for (const FileDef& f : catalogue()) map.emplace(lower_name(f.name), &f);
    return map;
  }();
  auto it = by_name.find(lower_name(base_name(name)));
  return it == by_name.end() ? nullptr : it->second;
}

std::string storage_name(std::string_view old_name) {
  std::string name = lower_name(base_name(old_name));
  const auto dot = name.find_last_of('.');
  if (dot != std::string::npos) name.erase(dot);
  return name + ".db";
}

}  // namespace mz::store
