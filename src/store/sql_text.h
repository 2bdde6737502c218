#pragma once
// Composing statements: values go in through sql_quote, dates through
// data_sql, and dates read back for the screen through data_tela.
#include <string>
#include <string_view>

#include "core/value.h"

namespace mz::store {

// 'D''Ávila': a text literal that no value can break out of.
std::string sql_quote(std::string_view value);

// DataSql: the content of a #...# literal from a date typed on a screen.
// "" -> today; 8 characters -> shaped "00/00/0000" first; then "mm/dd/yyyy";
// any other length -> "" (so the literal comes out as ##).
std::string data_sql(std::string_view text, Date today);

// DataTela: a date read from a file, for the screen. Length 8 is shaped
// "00/00/0000", length 10 stays, anything else is "".
std::string data_tela(const Value& value);

}  // namespace mz::store
