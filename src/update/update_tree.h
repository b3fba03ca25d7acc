#pragma once

#include <boost/unordered/unordered_flat_set.hpp>
#include <memory>
#include <vector>

#include "text/text.h"

namespace swiftroll {

/// How a node is written; colours are 0x00BBGGRR.
struct NodeLook {
    std::uint32_t foreColour = 0, backColour = 0xFFFFFF;
    bool bold = false;
    bool expanded = false;
};

/// A line of the tree of versions, with the lines below it.
struct UpdateNode {
    Text text;
    NodeLook look;
    std::vector<UpdateNode> children;
};

/// `tvwUpdates`: the product and its versions, the newest first, each with what it changed.
class UpdateTree {
  public:
    void Clear();
    /// Adds a node of the first level, behind all others or directly behind the first one.
    /// @throws Failure DuplicateKey
    UpdateNode& Add(TextView key, TextView text, const NodeLook& look);
    UpdateNode& AddBehindFirst(TextView key, TextView text, const NodeLook& look);

    /// Adds a line below the first node.
    void AddBelowFirst(TextView text, const NodeLook& look);

    const std::vector<std::unique_ptr<UpdateNode>>& Nodes() const { return nodes_; }
    /// Grows with every change.
    int Changes() const { return changes_; }

  private:
    UpdateNode& Insert(std::size_t place, TextView key, TextView text, const NodeLook& look);
    std::vector<std::unique_ptr<UpdateNode>> nodes_;
    boost::unordered_flat_set<Text> keys_;
    int changes_ = 0;
};

}  // namespace swiftroll
