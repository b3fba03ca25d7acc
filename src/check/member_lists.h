#pragma once

#include "check/file_records.h"

namespace swiftroll::modCheck {

/// For each person the lines of families that name it, which stand all over the file.
class MemberLists {
  public:
    explicit MemberLists(const FileRecords& records);

    /// Calls `visit(link)` for the lines that name a person, in the order of the file.
    template <class Visitor>
    void Visit(std::uint32_t person, const Visitor& visit) const {
        for (std::uint32_t i = starts_[person]; i < starts_[person + 1]; ++i)
            visit(records_.memberLinks[links_[i]]);
    }

  private:
    const FileRecords& records_;
    std::vector<std::uint32_t> starts_;  // by person, and one more
    std::vector<std::uint32_t> links_;
};

}  // namespace swiftroll::modCheck
