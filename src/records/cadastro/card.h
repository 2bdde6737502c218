#pragma once
// The customer card of Cadastro: its fields and the screen's own state,
// shared by the files of this folder.
#include <string>

#include "store/database.h"
#include "ui/runtime.h"

namespace mz::records::cadastro {

// How a field's text goes into its column of CADA and comes back.
enum class Stored { Text, Date, Money, Cnpj };

// A field of the card, named after its column, in the order of entry.
struct CardField {
  const char* name;
  const char* caption;
  ui::ControlKind kind;
  Stored stored;
  const char* help;  // the status line while the field has the focus; nullptr for none
};

class CadastroForm : public ui::Form {
 public:
  explicit CadastroForm(ui::Runtime& rt);
  ui::Runtime& rt() const { return runtime(); }

  // card.cpp
  // Every field blank (the income "0,00") and no dependants.
  void clear_card();
  // The row under the cursor of `rs` on the screen, with its dependants.
  void show_customer(store::Recordset& rs);
  // Loads the customer whose `column` holds `value`; false when none does.
  bool show_customer_where(const std::string& column, const std::string& value);
  // The fields into the row being added or edited; a new row gets "" in the
  // columns this screen has no field for.
  void write_customer(store::Recordset& rs, bool is_new) const;

  // dependants.cpp
  void show_dependants(const std::string& customer);
  // X1 and X2 as a new line of Grid1, back to X1.
  void add_dependant();
  void remove_dependant();
  // DEPE under this name becomes the lines of Grid1.
  void save_dependants(const std::string& customer);

  // A customer read from the file or just stored is on the screen: the one
  // that deletion removes.
  bool looked_up = false;
};

// Declares the card's fields with their captions and help lines.
void add_card(CadastroForm& f);
// The look-ups on leaving NN and A1 and the duplicate checks of A4, A24,
// A23 and A27.
void attach_checks(CadastroForm& f);
// The dependant fields X1, X2 and the grid Grid1.
void add_dependants(CadastroForm& f);
// The buttons and their menu items.
void add_actions(CadastroForm& f);

store::Database customers();
// "SELECT* FROM CADA where COLUMN = 'value'".
store::Recordset customer_where(store::Database& db, const std::string& column, const std::string& value);

}  // namespace mz::records::cadastro
