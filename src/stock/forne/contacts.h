#pragma once
// The contact persons of a supplier: entered into Grid1 on the contacts
// page, kept in FORNE2.Mdb under the supplier's code.
#include <string>

#include "ui/runtime.h"

namespace mz::stock::forne {

// Declares A31, A32, A33, "Lançar" and Grid1 on the contacts page.
void add_contacts(ui::Runtime& rt, ui::Form& f);

// The contact fields emptied and Grid1 back to its heading.
void clear_contacts(ui::Form& f);
// Grid1 refilled from the rows of that supplier.
void load_contacts(ui::Control& grid, const std::string& code);
// The supplier's rows replaced by the lines of Grid1.
void save_contacts(const ui::Control& grid, const std::string& code);
// Every contact row of the supplier, in one statement.
void delete_contacts(const std::string& code);

}  // namespace mz::stock::forne
