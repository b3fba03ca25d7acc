#include "support/plain_kinship.h"

namespace swiftroll::test {
namespace {

using Long = std::int32_t;

/// The procedures with their numbers for marks; recursions are frames on vectors, since chains are long.
class PlainSimplification {
  public:
    PlainSimplification(PlainLinks& links, Long lTo, const std::function<bool()>& goOn)
        : links_(links), lTo_(lTo), goOn_(goOn), abIslandDone_(links.size()) {}

    PlainPairs Run(Long lFrom) {
        std::vector<Frame> calls;
        const auto call = [&](Long lThis, Long lPrev) {
            calls.push_back({lThis, lPrev, links_[Place(lThis)], 0});
            RemoveDeadEnds(lThis, lPrev, calls.back().aN);
        };
        call(lFrom, 0);
        while (!calls.empty() && goOn_()) {
            Frame& frame = calls.back();
            if (frame.i == frame.aN.size()) {
                calls.pop_back();
                continue;
            }
            const Long lN = frame.aN[frame.i++];
            if (!IsLinked(frame.lThis, lN) || lN == lTo_ || abIslandDone_[Place(lN)] || lN == frame.lPrev)
                continue;
            abIslandDone_[Place(lN)] = true;
            call(lN, frame.lThis);
        }
        return std::move(removed_);
    }

  private:
    struct Frame {
        Long lThis, lPrev;
        std::vector<Long> aN;
        std::size_t i;
    };
    static std::size_t Place(Long l) { return static_cast<std::size_t>(l); }

    bool IsLinked(Long lThis, Long lN) const {
        for (const Long other : links_[Place(lThis)]) {
            if (other == lN) return true;
        }
        return false;
    }

    void RemoveDeadEnds(Long lThis, Long lPrev, const std::vector<Long>& aN) {
        alMark_.assign(links_.size(), 0);
        alMark_[Place(lThis)] = 1;
        for (const Long lN : aN) alMark_[Place(lN)] = 2;
        alMark_[Place(lPrev)] = 6;
        alMark_[Place(lTo_)] = 9;
        for (std::size_t i = 0; i < aN.size(); ++i) {
            if (alMark_[Place(aN[i])] != 2) continue;
            alMark_[Place(aN[i])] = 3;
            const int v = MarkNeighbors(aN[i]) ? 4 : 5;
            for (std::size_t j = i; j < aN.size(); ++j) {
                int& mark = alMark_[Place(aN[j])];
                if (mark != 3 && mark != 5) continue;
                mark = v;
                if (v == 5 && std::erase(links_[Place(lThis)], aN[j]) > 0) removed_.emplace(lThis, aN[j]);
            }
        }
    }

    bool MarkNeighbors(Long lStart) {
        struct Call {
            Long lThis;
            std::vector<Long> aN;
            std::size_t i;
        };
        std::vector<Call> calls{{lStart, links_[Place(lStart)], 0}};
        bool result = false;
        while (!calls.empty() && goOn_()) {
            Call& frame = calls.back();
            if (result || frame.i == frame.aN.size()) {
                alMark_[Place(frame.lThis)] = result ? 4 : 5;
                calls.pop_back();
                continue;
            }
            const Long lN = frame.aN[frame.i++];
            const int mark = alMark_[Place(lN)];
            if (mark == 4 || mark == 9) result = true;
            if (mark != 0 && mark != 2) continue;
            alMark_[Place(lN)] = 3;
            calls.push_back({lN, links_[Place(lN)], 0});
        }
        return result;
    }

    PlainLinks& links_;
    Long lTo_;
    const std::function<bool()>& goOn_;
    std::vector<bool> abIslandDone_;
    std::vector<int> alMark_;
    PlainPairs removed_;
};

}  // namespace

PlainPairs PlainRemoveIslands(PlainLinks& links, Long lFrom, Long lTo, const std::function<bool()>& goOn) {
    return PlainSimplification(links, lTo, goOn).Run(lFrom);
}

void PlainWalk(const PlainLinks& links, Long lFrom, Long lTo,
               const std::function<bool(const std::vector<Long>&)>& onPath,
               const std::function<bool()>& goOn) {
    std::vector<Long> alPathPos(links.size()), path;
    std::vector<std::size_t> next;
    const auto enter = [&](Long l) {
        path.push_back(l);
        next.push_back(0);
        alPathPos[static_cast<std::size_t>(l)] = static_cast<Long>(path.size());
    };
    enter(lFrom);
    while (!path.empty() && goOn()) {
        const Long lThis = path.back();
        const std::vector<Long>& neighbours = links[static_cast<std::size_t>(lThis)];
        if (lThis == lTo && !onPath(path)) return;
        std::size_t& i = next.back();
        if (lThis != lTo) {
            while (i < neighbours.size() && alPathPos[static_cast<std::size_t>(neighbours[i])] != 0) ++i;
            if (i < neighbours.size()) {
                enter(neighbours[i++]);
                continue;
            }
        }
        alPathPos[static_cast<std::size_t>(lThis)] = 0;
        path.pop_back();
        next.pop_back();
    }
}

}  // namespace swiftroll::test
