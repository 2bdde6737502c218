#pragma once
// The settlement screen bxx and the pieces its handlers are made of.
#include <functional>
#include <string>

#include "core/value.h"
#include "ui/form.h"

namespace mz::finance::bxx {

class BxxForm : public ui::Form {
 public:
  using ui::Form::Form;
  // Set by the caller for each account: rebuilds the caller's list.
  std::function<void()> after_change;
};

// A figure of the screen read as money; text that holds no amount counts as zero.
Currency money_in(const ui::Control& field);

// Loading: the account of NN into the fields, its status line and days late.
void load_account(ui::Runtime& rt, ui::Form& f);
// Leaving G2: the interest for the days late on the amount in VP, added to VP.
void add_interest(ui::Form& f);
// Leaving VP: an amount paid above the amount owed counts as interest.
void paid_by_hand(ui::Form& f);

// "&Confirma": the settlement, its re-issue and the cash line.
void confirm_settlement(ui::Runtime& rt, BxxForm& f);
// "&Altera" and "A&paga".
void alter_account(ui::Runtime& rt, BxxForm& f);
void delete_account(ui::Runtime& rt, BxxForm& f);
// "&Recibo".
void print_receipt(ui::Runtime& rt, ui::Form& f);

// Ends a command that changed the account: the caller's list, then bxx closes.
void finish(ui::Runtime& rt, BxxForm& f);

}  // namespace mz::finance::bxx
