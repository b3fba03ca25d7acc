#pragma once

#include <boost/unordered/unordered_flat_set.hpp>
#include <functional>
#include <optional>
#include <vector>

#include "tables/text_store.h"
#include "text/edit.h"

namespace swiftroll {

/// Values under text keys that are compared without regard to case, in the order of their addition.
template <class Value>
class KeyedCollection {
  public:
    /// Adds a value; false, and nothing is added, when the key is there already.
    bool Add(TextView key, const Value& value) {
        entries_.push_back({store_.Put(key), HashOf(key), value});
        if (index_.insert(static_cast<std::uint32_t>(entries_.size() - 1)).second) return true;
        entries_.pop_back();
        return false;
    }
    std::optional<Value> Find(TextView key) const {
        const auto found = index_.find(Probe{key, HashOf(key)});
        if (found == index_.end()) return std::nullopt;
        return entries_[*found].value;
    }
    std::size_t Count() const { return entries_.size(); }

  private:
    struct Entry {
        TextRef key;
        std::uint32_t hash;
        Value value;
    };
    struct Probe {
        TextView key;
        std::uint32_t hash;
    };
    struct Hash {
        using is_transparent = void;
        const std::vector<Entry>* entries;
        std::size_t operator()(std::uint32_t entry) const { return Mix((*entries)[entry].hash); }
        std::size_t operator()(const Probe& probe) const { return Mix(probe.hash); }
        static std::size_t Mix(std::uint32_t hash) { return hash * 0x9E3779B97F4A7C15u; }
    };
    struct Equal {
        using is_transparent = void;
        const KeyedCollection* self;
        bool operator()(std::uint32_t a, std::uint32_t b) const {
            return a == b || self->Same(self->ViewOf(a), self->entries_[a].hash, b);
        }
        bool operator()(const Probe& p, std::uint32_t b) const { return self->Same(p.key, p.hash, b); }
        bool operator()(std::uint32_t b, const Probe& p) const { return self->Same(p.key, p.hash, b); }
    };

    TextView ViewOf(std::uint32_t entry) const { return store_.Get(entries_[entry].key); }
    bool Same(TextView key, std::uint32_t hash, std::uint32_t entry) const {
        if (hash != entries_[entry].hash) return false;
        const TextView other = ViewOf(entry);
        return key == other || UpperCase(key) == UpperCase(other);
    }
    static std::uint32_t HashOf(TextView key) {
        return static_cast<std::uint32_t>(std::hash<std::string>()(UpperCase(key)));
    }

    TextStore store_;
    std::vector<Entry> entries_;
    boost::unordered_flat_set<std::uint32_t, Hash, Equal> index_{0, Hash{&entries_}, Equal{this}};
};

}  // namespace swiftroll
