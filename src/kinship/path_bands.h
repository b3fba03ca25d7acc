#pragma once

#include "kinship/out_link.h"

namespace swiftroll::modKinship {

/// Whether two rows of `lvwKinship`, told by their first cells, belong to one path.
inline bool IsSamePath(TextView a, TextView b) {
    return a.substr(0, kPathDigits) == b.substr(0, kPathDigits);
}

/// Whether a row belongs to a path with an odd number, so that neighbouring paths can be told apart.
inline bool IsOddPath(TextView seqNr) {
    return seqNr.size() >= kPathDigits && (seqNr[kPathDigits - 1] - '0') % 2 != 0;
}

}  // namespace swiftroll::modKinship
