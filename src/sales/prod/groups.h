#pragma once
// The period's lines are read once and grouped here as a grouped statement
// groups them: texts equal in the shop's collation (case aside) fall
// together, a null is a group of its own, and where the order shows, the
// groups come in ascending order of their columns.
#include <algorithm>
#include <initializer_list>
#include <string>
#include <unordered_map>
#include <vector>

#include "core/value.h"

namespace mz::sales::prod {

using GroupKey = std::vector<Value>;

// Ascending as the store sorts: null first, numbers and dates by value,
// texts in the shop's collation.
bool group_before(const GroupKey& a, const GroupKey& b);
bool value_before(const Value& a, const Value& b);

// One text for the columns of a group: equal exactly when the store would
// put the two rows in one group. True when the column was null or plain
// ASCII text, whose key bytes sort as the store sorts it.
bool add_to_key(std::string& key, const Value& column);

// SUM over a group's quantities: null while every one is null.
struct Quantity {
  double sum = 0;
  bool any = false;
  void add(const Value& v);
  Value value() const { return any ? Value(sum) : Value::null(); }
};

// Groups met in any order, each with its columns and its totals.
template <typename Totals>
class Groups {
 public:
  struct Group {
    GroupKey columns;
    Totals totals;
    std::string key;
  };
  // The group of these columns, made when new.
  Totals& at(std::initializer_list<const Value*> columns) {
    key_.clear();
    bool sortable = true;
    for (const Value* c : columns) sortable = add_to_key(key_, *c) && sortable;
    auto it = index_.find(key_);
    if (it == index_.end()) {
      it = index_.emplace(key_, groups_.size()).first;
      GroupKey copy;
      copy.reserve(columns.size());
      for (const Value* c : columns) copy.push_back(*c);
      groups_.push_back({std::move(copy), Totals{}, key_});
      sortable_ = sortable_ && sortable;
    }
    return groups_[it->second].totals;
  }
  size_t size() const { return groups_.size(); }
  // The groups in ascending order of their columns.
  std::vector<Group>& sorted() {
    if (sortable_)
      std::sort(groups_.begin(), groups_.end(), [](const Group& a, const Group& b) { return a.key < b.key; });
    else
      std::sort(groups_.begin(), groups_.end(), [](const Group& a, const Group& b) { return group_before(a.columns, b.columns); });
    index_.clear();
    return groups_;
  }
  // The groups in the order they were met.
  const std::vector<Group>& met() const { return groups_; }

 private:
  std::unordered_map<std::string, size_t> index_;
  std::string key_;  // kept to spare an allocation a line
  bool sortable_ = true;  // every key sorts as its columns do
  std::vector<Group> groups_;
};

}  // namespace mz::sales::prod
