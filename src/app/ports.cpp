#include "app/ports.h"

#include "text/failure.h"

namespace swiftroll {

std::size_t File::ReadAt(std::int64_t, char*, std::size_t) { throw Failure(FailureKind::FileAccess); }

}  // namespace swiftroll
