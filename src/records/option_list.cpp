#include "records/option_list.h"

#include "core/text.h"
#include "store/database.h"
#include "store/sql_text.h"

namespace mz::records {

namespace {

std::string select_column(const OptionList& list) {
  return std::string("select ") + list.column + " from " + list.table;
}

}  // namespace

std::vector<std::string> list_items(const OptionList& list) {
  std::vector<std::string> items;
  store::Database db = store::Workspace::open_database(list.file);
  for (store::Recordset rs = db.open_recordset(select_column(list) + " order by " + list.column); !rs.eof();
       rs.move_next())
    items.push_back(rs[0].text());
  return items;
}

void add_or_remove(ui::Runtime& rt, const OptionList& list, ui::Control& combo) {
  std::string name = rt.host().input_box(list.prompt, "Cadastro", "").value_or("");
  if (name.empty()) return;
  store::Database db = store::Workspace::open_database(list.file);
  std::string where = std::string(" where ") + list.column + " = " + store::sql_quote(name);
  store::Recordset rs = db.open_recordset(select_column(list) + where);
  if (!rs.eof()) {
    if (rt.message("Confirma exclusão: " + name + "?", ui::Buttons::YesNo, ui::Icon::Question, "Cadastro") !=
        ui::Answer::Yes)
      return;
    rs.close();
    db.execute(std::string("delete from ") + list.table + where);
    rt.message("Operação realizada com sucesso.");
  } else {
    rs.add_new();
    rs[list.column] = ucase(name);
    rs.update();
  }
  combo.set_text("");
  combo.list_index = -1;
  combo.items = list_items(list);
}

}  // namespace mz::records
