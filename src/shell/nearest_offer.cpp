#include "shell/nearest_offer.h"

#include "app/french_count.h"
#include "kinship/path_options.h"
#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll {
namespace {

using namespace std::chrono_literals;

// When a search has become long.
constexpr auto kLongTime = 3s;
constexpr std::int64_t kManyPaths = 1000;
// How often the count in the bar changes.
constexpr auto kShowStep = 200ms;

}  // namespace

void NearestOffer::Tell(std::int64_t paths) {
    // Who closed the offer is not asked again.
    if (isMade_ && !app_.messageBar.Has(this)) return;
    const auto now = std::chrono::steady_clock::now();
    if (!isMade_ && paths < kManyPaths && now - start_ < kLongTime) return;
    if (isMade_ && now - lastShown_ < kShowStep) return;
    isMade_ = true;
    lastShown_ = now;
    Show(paths);
}

void NearestOffer::Show(std::int64_t paths) {
    const std::int32_t count = modKinship::NearestCount(app_);
    Notice notice;
    notice.text = Concat({FrenchCount(paths), ForCount(paths, " lien trouvé"_t, " liens trouvés"_t),
                          ", la recherche continue."_t});
    // The search that goes on ends at its next pause; only then the other one begins.
    const auto take = [this] {
        isTaken_ = true;
        app_.bAbort = true;
    };
    const Text caption = count == 1 ? Text("Afficher le plus proche"_t)
                                    : Concat({"Afficher les ", FrenchCount(count), " plus proches"});
    notice.buttons = {{caption, take}, {Text("Arrêter"_t), [this] { app_.RequestAbort(); }}};
    app_.messageBar.Show(this, std::move(notice));
}

}  // namespace swiftroll
