#pragma once
// The screens of the application shell, and the gate every guarded module
// passes through.
#include <memory>
#include <string>

#include "store/database.h"
#include "ui/runtime.h"

namespace mz::shell {

std::unique_ptr<ui::Form> make_veri(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_inicio(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_ini2(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_opera1(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_opera2(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_opera(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_menudp(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_senha2(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_empre(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_lay(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_cadsenha(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_senha(ui::Runtime& rt);
std::unique_ptr<ui::Form> make_msn(ui::Runtime& rt);

// The one row of module passwords, opened with its connection text.
store::Recordset password_row();

// Shows a screen the way the menus do: the hourglass first, reset by the
// first field of the screen that comes up.
void show_waiting(ui::Runtime& rt, const std::string& target);
// The gate: with the module's password empty the target opens at once,
// otherwise SENHA2 asks for it; with no password row nothing opens.
// `code` is the gate's code, "A2" .. "A19".
void open_guarded(ui::Runtime& rt, const std::string& code);
// The sales gate of the main screens, which also traps a failed read.
void open_sales(ui::Runtime& rt);
// The four modules both main screens offer, in their order:
// Cadastros, Vendas, Financeiro, Operacional.
void open_module(ui::Runtime& rt, int module);

}  // namespace mz::shell
