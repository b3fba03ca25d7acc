#include "kinship/out_link.h"

#include <algorithm>

#include "kinship/path_options.h"
#include "kinship/relations.h"
#include "tables/columns.h"
#include "text/edit.h"
#include "text/numbers.h"

namespace swiftroll::modKinship {
namespace {

constexpr TextView kSeparator = "999999";
/// Hidden paths can be beyond all number, and their rows must not take the memory of the others.
constexpr std::int32_t kMostHiddenSummaries = 1'000'000;

}  // namespace

PathWriter::PathWriter(Application& app, const IslandGraph& island, const PathCore& core)
    : app_(app),
      island_(island),
      core_(core),
      store_(app.lvwKinship.Store()),
      copier_(app.lvwXref1.Store(), store_, TextCopier::Mode::Put),
      linkTexts_(static_cast<std::size_t>(core.graph.LinkCount())),
      personTexts_(static_cast<std::size_t>(core.graph.NodeCount())) {}

const PathWriter::LinkTexts& PathWriter::TextsOfLink(std::int32_t link) {
    LinkTexts& texts = At(linkTexts_, link);
    if (texts.Type.IsEmpty()) {
        const Row row = island_.RowOfLink(At(core_.links, link));
        texts = {copier_.Copy(row.Ref(Xref1::Type)), copier_.Copy(row.Ref(Xref1::IDFamily)),
                 copier_.Copy(row.Ref(Xref1::Family))};
    }
    return texts;
}

const PathWriter::PersonTexts& PathWriter::TextsOfPerson(std::int32_t node) {
    PersonTexts& texts = At(personTexts_, node);
    if (texts.IDIndi.IsEmpty()) {
        const auto found = app_.lvwIn.Find(RowKey(At(island_.ids, At(core_.nodes, node))));
        if (!found) throw Failure(FailureKind::KeyNotFound);
        const Row& row = *found;
        texts = {store_.Put(row.Cell(In::ID)),
                 store_.Put(Concat({row.Cell(In::LastName), ", ", row.Cell(In::FirstName)}))};
    }
    return texts;
}

/// The type of two links of one family as one; empty when the individual between has a row of his own.
TextRef PathWriter::Folded(const LinkTexts& first, const LinkTexts& second) {
    if (first.IDFamily != second.IDFamily) return {};
    const auto type = FoldedType(store_.Get(first.Type), store_.Get(second.Type));
    return type ? store_.Intern(*type) : TextRef();
}

TextRef PathWriter::LineNumber(std::size_t lSeqNr) {
    while (lineNumbers_.size() < lSeqNr) {
        const auto number = static_cast<std::int64_t>(lineNumbers_.size()) + 1;
        lineNumbers_.push_back(store_.Intern(Decimal(number, kPathDigits)));
    }
    return lineNumbers_[lSeqNr - 1];
}

void PathWriter::Compose(std::span<const std::int32_t> links) {
    lines_.clear();
    nrSpouses_ = 0;
    std::int32_t node = core_.from;
    for (std::size_t i = 0; i < links.size(); ++i) {
        LinkTexts link = TextsOfLink(links[i]);
        const PersonTexts& person = TextsOfPerson(node);
        if (i + 1 < links.size()) {
            const LinkTexts& next = TextsOfLink(links[i + 1]);
            const TextRef folded = Folded(link, next);
            if (!folded.IsEmpty()) {
                link = {folded, next.IDFamily, next.Family};
                ++i;
            }
        }
        if (RelationOf(store_.Get(link.Type)) == Relation::Spouse) ++nrSpouses_;
        lines_.push_back({person, link});
        node = core_.graph.Target(links[i]);
    }
    lines_.push_back({TextsOfPerson(node), {}});
}

bool PathWriter::IsHidden() const {
    return LimitsOf(app_).Hide(nrSpouses_, static_cast<std::int32_t>(lines_.size()));
}

void PathWriter::Widen(ColumnId column, std::size_t length) {
    std::int32_t& width = app_.lMaxLenKinship[column];
    width = std::max(width, static_cast<std::int32_t>(length));
}

bool PathWriter::OutLink(std::int64_t lNrLinks, std::span<const std::int32_t> links) {
    Compose(links);
    const Text path = Decimal(lNrLinks, kPathDigits), pathNumber = Concat({path, kPathEnd});
    Widen(Kinship::SeqNr, pathNumber.size() + store_.Get(LineNumber(lines_.size())).size());
    for (const Line& line : lines_) {
        Widen(Kinship::IDIndi, store_.Get(line.person.IDIndi).size());
        Widen(Kinship::Indi, store_.Get(line.person.Indi).size());
        Widen(Kinship::Type, store_.Get(line.link.Type).size());
        Widen(Kinship::IDFamily, store_.Get(line.link.IDFamily).size());
        Widen(Kinship::Family, store_.Get(line.link.Family).size());
    }
    if (IsHidden()) {
        if (hiddenSummaries_++ < kMostHiddenSummaries) WriteSummary(path, true);
        return false;
    }

    const TextRef pathKey = store_.Intern(pathNumber);
    const TextRef nrSpouses = store_.Intern(Decimal(nrSpouses_, 3));
    const TextRef nrLink = store_.Intern(Decimal(static_cast<std::int64_t>(lines_.size()), 4));
    Text seqNr;
    const auto addRow = [&](std::optional<RowKey> key, TextView number) {
        seqNr.assign(pathNumber).append(number);
        const TextRef text = store_.Put(seqNr);
        Row row = key ? app_.lvwKinship.AddNew(*key, text) : app_.lvwKinship.Add(std::nullopt, key, text);
        row.SetCell(Kinship::NrSpouses, nrSpouses);
        row.SetCell(Kinship::NrLink, nrLink);
        return row;
    };
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        const TextRef number = LineNumber(i + 1);
        Row row = addRow(RowKey(pathKey, number), store_.Get(number));
        row.SetCell(Kinship::IDIndi, lines_[i].person.IDIndi);
        row.SetCell(Kinship::Indi, lines_[i].person.Indi);
        row.SetCell(Kinship::Type, lines_[i].link.Type);
        row.SetCell(Kinship::IDFamily, lines_[i].link.IDFamily);
        row.SetCell(Kinship::Family, lines_[i].link.Family);
    }
    SetMaxLen(addRow(std::nullopt, kSeparator), app_.lMaxLenKinship);
    WriteSummary(path, false);
    return true;
}

/// Adds the row of the path to `lvwPaths`; what it is called is worked out when somebody looks.
void PathWriter::WriteSummary(TextView number, bool isHidden) {
    Row row = app_.lvwPaths.Add(std::nullopt, number, number);
    TextStore& store = app_.lvwPaths.Store();
    row.SetCell(Paths::Spouses, store.Intern(Decimal(nrSpouses_, 3)));
    row.SetCell(Paths::Links, store.Intern(Decimal(static_cast<std::int64_t>(lines_.size()), 4)));
    row.SetCell(Paths::Visible, store.Intern(isHidden ? kHidden : kVisible));
}

}  // namespace swiftroll::modKinship
