#pragma once

#include <cstdint>
#include <limits>
#include <vector>

#include "selection/relatives.h"
#include "selection/seen_texts.h"

namespace swiftroll::modSelectionIn {

inline constexpr std::int32_t kAllGenerations = std::numeric_limits<std::int32_t>::max();

/// The way from one generation to the next: `Relatives::VisitParents` or `VisitChildren`.
using GenerationStep = void (Relatives::*)(TextRef sIndi, const Relatives::Visitor& visit);

/// Individuals whose ancestors or descendants are wanted, each once.
class Lineage {
  public:
    /// Adds an individual to begin with; the empty one is nobody.
    void Add(TextRef sIndi) {
        if (!sIndi.IsEmpty() && seen_.IsNew(sIndi)) generation_.push_back(sIndi);
    }
    /// Marks all who are reached within so many generations, each of which is followed once, so that circles
    /// end. Those it began with are marked only where they are reached. Somebody without a record is passed
    /// over, but not those behind. @throws Failure KeyNotFound for a family that lvwFamily does not hold
    void Mark(Relatives& relatives, const Marker& marker, GenerationStep step, std::int32_t lGenerations);

  private:
    SeenTexts seen_;
    std::vector<TextRef> generation_;
};

}  // namespace swiftroll::modSelectionIn
