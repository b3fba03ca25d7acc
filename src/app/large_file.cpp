#include "app/large_file.h"

#include <algorithm>

#include "app/french_count.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll {
namespace {

constexpr std::uint64_t kMegabyte = 1'000'000, kGigabyte = 1000 * kMegabyte;

/// "1,8 Go", "12 Mo".
Text FrenchSize(std::uint64_t bytes) {
    if (bytes < kGigabyte) return Concat({Decimal(static_cast<std::int64_t>(bytes / kMegabyte)), " Mo"});
    return Concat({FrenchTenths(static_cast<std::int64_t>(bytes / (kGigabyte / 10))), " Go"});
}

}  // namespace

bool MayWriteLarge(Feedback& feedback, Files& files, TextView file, std::uint64_t bytes) {
    const auto room = files.RoomFor(file);
    if (!room || bytes <= std::min(kGigabyte, *room / 2)) return true;
    const Text text =
        Concat({"Le fichier prendrait environ "_t, FrenchSize(bytes), " ; le disque a encore "_t,
                FrenchSize(*room), " de libre."_t, kLineEnd, file, kLineEnd, "Voulez-vous l'écrire ?"_t});
    return feedback.Box(" - Grand fichier"_t, text, BoxButtons::YesNo, BoxIcon::Question, BoxTopic::LargeFile,
                        BoxAnswer::No) == BoxAnswer::Yes;
}

}  // namespace swiftroll
