#pragma once
// What PEDIDO does with a whole order: recording it, opening one, a new
// one, deleting it, handing it to ENTRADA and printing it.
#include "ui/report.h"
#include "ui/runtime.h"

namespace mz::stock::pedido {

// F2 "&Grava": the order replaces its old rows in SAI.MDB.
void record(ui::Runtime& rt, ui::Form& f);
// Leaving EE1: the order of that number, or the next free number.
void open_order(ui::Runtime& rt, ui::Form& f);
// "&Limpa": a new order.
void new_order(ui::Runtime& rt, ui::Form& f);
// "&Exclui": the order's rows go.
void remove_order(ui::Runtime& rt, ui::Form& f);
// "&Entrada": the recorded order as lines of ENTRADA, and this screen closes.
void copy_to_entrada(ui::Runtime& rt, ui::Form& f);
// "&Imprime": `templ` (PEDIDO.rpt or PEDIDO2.rpt) for the order on screen.
void print_order(ui::Form& f, ui::Report& report, const char* templ);

// The discount leaves: TT := TL - DES.
void apply_discount(ui::Form& f);

}  // namespace mz::stock::pedido
