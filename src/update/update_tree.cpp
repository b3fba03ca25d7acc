#include "update/update_tree.h"

#include <algorithm>

#include "text/edit.h"
#include "text/failure.h"

namespace swiftroll {

void UpdateTree::Clear() {
    nodes_.clear();
    keys_.clear();
    ++changes_;
}

UpdateNode& UpdateTree::Add(TextView key, TextView text, const NodeLook& look) {
    return Insert(nodes_.size(), key, text, look);
}

UpdateNode& UpdateTree::AddBehindFirst(TextView key, TextView text, const NodeLook& look) {
    return Insert(std::min<std::size_t>(1, nodes_.size()), key, text, look);
}

void UpdateTree::AddBelowFirst(TextView text, const NodeLook& look) {
    ++changes_;
    nodes_.front()->children.push_back({Text(text), look, {}});
}

UpdateNode& UpdateTree::Insert(std::size_t place, TextView key, TextView text, const NodeLook& look) {
    if (!keys_.insert(UpperCase(key)).second) throw Failure(FailureKind::DuplicateKey, key);
    ++changes_;
    const auto at = nodes_.begin() + static_cast<std::ptrdiff_t>(place);
    return **nodes_.insert(at, std::make_unique<UpdateNode>(UpdateNode{Text(text), look, {}}));
}

}  // namespace swiftroll
