#include "selection/lineage.h"

#include <utility>

namespace swiftroll::modSelectionIn {

void Lineage::Mark(Relatives& relatives, const Marker& marker, GenerationStep step,
                   std::int32_t lGenerations) {
    for (std::int32_t i = 0; i < lGenerations && !generation_.empty(); ++i) {
        for (const TextRef sIndi : std::exchange(generation_, {})) {
            (relatives.*step)(sIndi, [&](TextRef relative) {
                marker.MarkIfKnown(relative);
                Add(relative);
            });
        }
    }
}

}  // namespace swiftroll::modSelectionIn
