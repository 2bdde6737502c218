// Every statement shape the screens send, run on a new shop's data folder,
// and every column they name looked up in its file.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "core/error.h"
#include "store/database.h"
#include "store/dialect.h"
#include "support/scratch_folder.h"

namespace mz::store {
namespace {

const std::string kCorpus = std::string(MOSTRUZ_SOURCE_DIR) + "/tests/store/corpus/";

struct Block {
  int line = 0;
  std::string file;
  std::string statement;
  std::vector<std::string> expected;
  bool expect_rows = false;
  bool expect_error = false;
};

std::vector<Block> read_corpus(const std::string& path) {
  std::ifstream in(path);
  std::vector<Block> blocks;
  std::string line;
  int number = 0;
  while (std::getline(in, line)) {
    ++number;
    if (line.empty() || line[0] == '#') continue;
    if (line.rfind("@ ", 0) == 0) {
      blocks.push_back({number, line.substr(2), "", {}, false, false});
    } else if (blocks.empty()) {
      ADD_FAILURE() << path << ":" << number << ": a statement before its file";
    } else if (line.rfind("=>", 0) == 0) {
      blocks.back().expect_rows = true;
      blocks.back().expected.push_back(line.size() > 3 ? line.substr(3) : "");
    } else if (line == "!") {
      blocks.back().expect_error = true;
    } else {
      std::string& s = blocks.back().statement;
      s += (s.empty() ? "" : "\n") + line;
    }
  }
  return blocks;
}

std::vector<std::string> run(const Block& b) {
  Database db = Workspace::open_trusted(b.file);
  if (translate(b.statement).kind != StatementKind::Select) {
    db.execute(b.statement);
    return {};
  }
  std::vector<std::string> rows;
  for (Recordset rs = db.open_recordset(b.statement); !rs.eof(); rs.move_next()) {
    std::string row;
    for (size_t i = 0; i < rs.field_count(); ++i) row += (i ? "\t" : "") + rs[i].text();
    rows.push_back(row);
  }
  return rows;
}

TEST(StoreCorpus, EveryStatementShapeRuns) {
  testing::ScratchFolder folder;
  std::vector<Block> blocks = read_corpus(kCorpus + "statements.txt");
  ASSERT_GT(blocks.size(), 100u);
  for (const Block& b : blocks) {
    SCOPED_TRACE("statements.txt:" + std::to_string(b.line) + ": " + b.statement);
    try {
      std::vector<std::string> rows = run(b);
      EXPECT_FALSE(b.expect_error) << "no error";
      if (b.expect_rows) {
        EXPECT_EQ(rows, b.expected);
      }
    } catch (const Error& e) {
      EXPECT_TRUE(b.expect_error) << "Erro " << e.number() << ": " << e.what();
    }
  }
}

TEST(StoreCorpus, EveryColumnTheScreensUseIsInItsFile) {
  testing::ScratchFolder folder;
  std::ifstream in(kCorpus + "columns_used.txt");
  std::string line;
  int checked = 0;
  while (std::getline(in, line)) {
    if (line.empty() || line[0] == '#') continue;
    std::istringstream fields(line);
    std::string file, table, column;
    std::getline(fields, file, '\t');
    std::getline(fields, table, '\t');
    std::getline(fields, column, '\t');
    SCOPED_TRACE(line);
    try {
      Workspace::open_trusted(file).open_recordset("SELECT [" + column + "] FROM [" + table + "]").close();
    } catch (const Error& e) {
      ADD_FAILURE() << e.what();
    }
    ++checked;
  }
  EXPECT_GT(checked, 300);
}

}  // namespace
}  // namespace mz::store
