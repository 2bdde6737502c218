#include "maintenance/customer_lists.h"

#include "core/error.h"
#include "store/sql_text.h"

namespace mz::maintenance {

const char* const kLabelsNotice =
    "A impressão de etiquetas é para impressora Laser ou Jato de Tinta. Recomenda-se Etiquetas Pimaco - Cód.6280 - "
    "30(Etiquetas p/ folha).";
const char* const kSenderLabelsNotice =
    "A impressão de etiquetas é para impressora Laser ou Jato de Tinta. Recomenda-se Etiquetas Pimaco - Cód.6280 - "
    "30(Etiquetas p/ folha), para alterar o endereço do Remetente mude no cadastro da empresa.";

RelaRow customer_row(store::Recordset& cada) {
  RelaRow row;
  row.codigo = cada["CODIGO"].text();
  row.nome = cada["A1"].text();
  row.apelido = cada["A2"].text();
  row.fone = cada["A4"].text();
  row.cidade = cada["A12"].text() + " " + cada["A13"].text();
  row.empresa = cada["A15"].text();
  row.tipo = "CLASSIFICAÇÃO: " + cada["A26"].text();
  row.rua = cada["A9"].text() + " " + cada["A10"].text() + " " + cada["A11"].text();
  row.cep = cada["A14"].text();
  return row;
}

void fill_rela(const std::vector<RelaRow>& rows) {
  store::Database db = store::Workspace::open_database("\\Rela.MDB");
  store::Database::Transaction unit(db);
  db.execute("DELETE FROM rela;");
  for (const RelaRow& r : rows) {
    std::string values;
    for (const std::string* v : {&r.codigo, &r.nome, &r.apelido, &r.fone, &r.cidade, &r.empresa, &r.tipo, &r.rua,
                                 &r.cep, &r.data})
      values += (values.empty() ? "" : ", ") + store::sql_quote(*v);
    db.execute("Insert into rela (CODIGO, NOME, APELIDO, FONE, CIDADE, EMPRESA, TIPO, RUA, CEP, DATA) values (" +
               values + ")");
  }
  unit.commit();
}

}  // namespace mz::maintenance
