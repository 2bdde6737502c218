#pragma once
// The one-column lists that feed combo boxes (groups, classifications,
// payment forms, carriers), and the one input box that both adds to and
// removes from them.
#include <string>
#include <vector>

#include "ui/runtime.h"

namespace mz::records {

struct OptionList {
  const char* file;
  const char* table;
  const char* column;
  const char* prompt;  // the input box's prompt, blank at the end as it stands
};

namespace lists {
inline constexpr OptionList kGroups{"\\grupo.mdb", "A1", "A1", "Digite o novo grupo e clique no botão OK "};
inline constexpr OptionList kClassifications{"\\c3.mdb", "A1", "A1", "Digite a nova classificação e clique no botão OK "};
inline constexpr OptionList kPaymentForms{"\\A1.mdb", "A1", "A1",
                                          "Digite a nova forma de pagamento e clique no botão OK "};
inline constexpr OptionList kCarriers{"\\TRAN.mdb", "cli", "a2", "Digite a nova transportadora e clique no botão OK "};
}  // namespace lists

// The list's items in alphabetical order.
std::vector<std::string> list_items(const OptionList& list);

// The input box titled "Cadastro": a new name is added in upper case; a name
// on the list is offered for deletion. The combo is then cleared and refilled.
// An empty answer, or No to the deletion, ends it with nothing changed.
void add_or_remove(ui::Runtime& rt, const OptionList& list, ui::Control& combo);

}  // namespace mz::records
