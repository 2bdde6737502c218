#include "store/sql_functions.h"

#include <cmath>
#include <cstdint>
#include <string_view>

#include "core/regional.h"
#include "core/text.h"
#include "store/collation.h"

namespace mz::store {
namespace {

std::string_view text_arg(sqlite3_value* v) {
  auto p = reinterpret_cast<const char*>(sqlite3_value_text(v));
  return p ? std::string_view(p, static_cast<size_t>(sqlite3_value_bytes(v))) : std::string_view();
}

void result_text(sqlite3_context* ctx, const std::string& s) {
  sqlite3_result_text(ctx, s.data(), static_cast<int>(s.size()), SQLITE_TRANSIENT);
}

int collate(void*, int na, const void* a, int nb, const void* b) {
  return compare_text(std::string_view(static_cast<const char*>(a), static_cast<size_t>(na)),
                      std::string_view(static_cast<const char*>(b), static_cast<size_t>(nb)));
}

// like(pattern, text): SQLite's argument order for "text LIKE pattern".
void like(sqlite3_context* ctx, int, sqlite3_value** argv) {
  if (sqlite3_value_type(argv[0]) == SQLITE_NULL || sqlite3_value_type(argv[1]) == SQLITE_NULL) return;
  sqlite3_result_int(ctx, like_match(text_arg(argv[1]), text_arg(argv[0])) ? 1 : 0);
}

// Money is summed exactly: whole numbers as integers, values with up to four
// decimals in ten-thousandths, anything else in a compensated double.
struct ExactSum {
  int64_t units = 0;  // ten-thousandths
  double rest = 0, rest_error = 0;
  bool any = false;
  bool fractional = false;

  void add_double(double d) {
    double scaled = d * 10000.0;
    double rounded = std::nearbyint(scaled);
    if (std::fabs(scaled) < 9e15 && std::fabs(scaled - rounded) < 1e-3 &&
        !__builtin_add_overflow(units, static_cast<int64_t>(rounded), &units))
      return;
    double y = d - rest_error;  // Kahan
    double t = rest + y;
    rest_error = (t - rest) - y;
    rest = t;
  }
};

void sum_step(sqlite3_context* ctx, int, sqlite3_value** argv) {
  auto* s = static_cast<ExactSum*>(sqlite3_aggregate_context(ctx, sizeof(ExactSum)));
  if (!s) return sqlite3_result_error_nomem(ctx);
  sqlite3_value* v = argv[0];
  switch (sqlite3_value_numeric_type(v)) {
    case SQLITE_NULL:
      return;
    case SQLITE_INTEGER: {
      int64_t i = sqlite3_value_int64(v);
      int64_t scaled;
      if (__builtin_mul_overflow(i, int64_t{10000}, &scaled) || __builtin_add_overflow(s->units, scaled, &s->units))
        s->add_double(static_cast<double>(i));
      break;
    }
    case SQLITE_FLOAT:
      s->fractional = true;
      s->add_double(sqlite3_value_double(v));
      break;
    default:  // text that SQLite could not read: read it as the shop writes numbers
      if (auto d = parse_number(text_arg(v))) {
        s->fractional = true;
        s->add_double(*d);
      }
      break;
  }
  s->any = true;
}

void sum_final(sqlite3_context* ctx) {
  auto* s = static_cast<ExactSum*>(sqlite3_aggregate_context(ctx, 0));
  if (!s || !s->any) return sqlite3_result_null(ctx);
  if (!s->fractional && s->rest == 0 && s->units % 10000 == 0) return sqlite3_result_int64(ctx, s->units / 10000);
  sqlite3_result_double(ctx, static_cast<double>(s->units) / 10000.0 + s->rest);
}

void left_fn(sqlite3_context* ctx, int, sqlite3_value** argv) {
  if (sqlite3_value_type(argv[0]) == SQLITE_NULL) return;
  result_text(ctx, left(text_arg(argv[0]), static_cast<size_t>(std::max<int64_t>(0, sqlite3_value_int64(argv[1])))));
}

void right_fn(sqlite3_context* ctx, int, sqlite3_value** argv) {
  if (sqlite3_value_type(argv[0]) == SQLITE_NULL) return;
  result_text(ctx, right(text_arg(argv[0]), static_cast<size_t>(std::max<int64_t>(0, sqlite3_value_int64(argv[1])))));
}

void ucase_fn(sqlite3_context* ctx, int, sqlite3_value** argv) {
  if (sqlite3_value_type(argv[0]) == SQLITE_NULL) return;
  result_text(ctx, ucase(text_arg(argv[0])));
}

}  // namespace

void register_sql_functions(sqlite3* db) {
  constexpr int kFlags = SQLITE_UTF8 | SQLITE_DETERMINISTIC;
  sqlite3_create_collation(db, kCollation, SQLITE_UTF8, nullptr, collate);
  sqlite3_create_function(db, "like", 2, kFlags, nullptr, like, nullptr, nullptr);
  sqlite3_create_function(db, "sum", 1, kFlags, nullptr, nullptr, sum_step, sum_final);
  sqlite3_create_function(db, "mz_left", 2, kFlags, nullptr, left_fn, nullptr, nullptr);
  sqlite3_create_function(db, "mz_right", 2, kFlags, nullptr, right_fn, nullptr, nullptr);
  sqlite3_create_function(db, "ucase", 1, kFlags, nullptr, ucase_fn, nullptr, nullptr);
}

}  // namespace mz::store
