#include "shell/kinship_choices.h"

#include "tables/columns.h"
#include "text/edit.h"
#include "text/numbers.h"

namespace swiftroll {
namespace {

constexpr std::int32_t kRecordedRows = 3;
constexpr int kHighlighted = 4, kChecked = 5, kEither = 6;

}  // namespace

void KinshipChoices::Count(int iChoice, std::int32_t row) {
    if (++lChoiceCount_[Place(iChoice)] <= kRecordedRows) sChoiceRows_[Place(iChoice)] += Decimal(row) + "/";
}

void KinshipChoices::Define(Table& lvwIn, std::int32_t& row) {
    lChoiceCount_.fill(0);
    sChoiceRows_.fill({});
    for (row = 1; row <= lvwIn.Count(); ++row) {
        const Row person = lvwIn.Item(row);
        // 1, 2 and 3 are the readings that keep the marks apart.
        const int marks = (person.Selected() ? 1 : 0) + (person.Checked() ? 2 : 0);
        if (marks == 0) continue;
        Count(marks, row);
        Count(kEither, row);
        if (person.Selected()) Count(kHighlighted, row);
        if (person.Checked()) Count(kChecked, row);
    }
}

std::optional<KinshipChoices::Pair> KinshipChoices::PairOf(int iChoice, Table& lvwIn) const {
    if (CountOf(iChoice) != 2) return std::nullopt;
    const auto rows = Split(Trim(sChoiceRows_[Place(iChoice)]), "/");
    const Pair pair{ToLong(rows[0]), ToLong(rows[1])};
    if (lvwIn.Item(pair.first).Cell(In::IslandNr) != lvwIn.Item(pair.second).Cell(In::IslandNr))
        return std::nullopt;
    return pair;
}

Text KinshipChoices::CountLines(int first, int last) const {
    Text lines;
    for (int i = first; i <= last; ++i) {
        lines += Concat({"  ", Decimal(CountOf(i)), " Individu(s) ", kReadingCaptions[Place(i)], kLineEnd});
    }
    return lines;
}

}  // namespace swiftroll
