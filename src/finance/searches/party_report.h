#pragma once
// Printing one party's accounts as CONCLIE lists them: the list is copied
// into the work table rela of rela10 and the report runs over it.
#include <memory>

#include "ui/report.h"
#include "ui/runtime.h"

namespace mz::finance::searches {

enum class PartyList { Open, Settled };

std::shared_ptr<ui::Report> party_report(ui::Runtime& rt);
// `screen` holds the party (D9) and the period (A2, A3); `list` the rows.
void print_party(ui::Report& report, const ui::Form& screen, const ui::Control& list, PartyList which);

}  // namespace mz::finance::searches
