#pragma once
// The way into the settlement screen bxx: the account search opens it on one
// account and has its list rebuilt when bxx has changed an account.
#include <functional>
#include <string>

#include "ui/runtime.h"

namespace mz::finance {

// Puts the control number into bxx.NN and shows bxx; NN gaining the focus
// loads the account. `after_change` runs once "&Confirma", "&Altera" or
// "A&paga" has written, just before bxx closes: the caller rebuilds its list
// of accounts there.
void open_settlement(ui::Runtime& rt, const std::string& key, std::function<void()> after_change = {});

}  // namespace mz::finance
