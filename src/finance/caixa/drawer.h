#pragma once
// ABRECX and FECHACX: one value, one button, one more line in the cash book.
#include <memory>

#include "ui/runtime.h"

namespace mz::finance::cash {

struct Drawer {
  const char* screen;
  const char* caption;
  const char* value_caption;
  const char* hint;
  const char* operation;
  const char* description;
};

inline constexpr Drawer kOpening{"ABRECX", "Abre Caixa", "VALOR DE ABERTURA:",
                                 "DIGITE O VALOR DE ABERTURA DO CAIXA  E CONFIRME", "Crédito",
                                 "Abertura de cx - saldo inicial."};
inline constexpr Drawer kClosing{"FECHACX", "Fecha Caixa", "VALOR DE RETIRADA:",
                                 "DIGITE O VALOR DE RETIRADA DO CAIXA  E CONFIRME", "Débito",
                                 "Fechamento de cx - retirada."};

std::unique_ptr<ui::Form> make_drawer(ui::Runtime& rt, const Drawer& drawer);

}  // namespace mz::finance::cash
