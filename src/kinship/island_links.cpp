#include "kinship/island_links.h"

#include "tables/columns.h"
#include "tables/look_ahead.h"
#include "tables/text_copier.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::modKinship {
namespace {

constexpr std::int32_t kStatusStep = 1000;
constexpr TextView kStatus = "Simplification de l'arbre... : ";

/// Tells what links say. Their words are few, and looked at once each.
class KindReader {
  public:
    explicit KindReader(const TextStore& store) : store_(store), kindOfWord_(store.InternedCount()) {}

    LinkKind Read(TextRef word, TextRef family) {
        LinkKind kind;
        if (!word.IsEmpty()) {
            auto& known = kindOfWord_[word.Symbol()];
            if (!known) {
                const TextView text = store_.Get(word);
                known = {RelationOf(text) == Relation::Spouse, FoldAsFirst(text), FoldAsSecond(text)};
            }
            kind = *known;
        }
        if (!family.IsEmpty()) kind.family = static_cast<std::int32_t>(family.Symbol()) + 1;
        return kind;
    }

  private:
    const TextStore& store_;
    std::vector<std::optional<LinkKind>> kindOfWord_;
};

}  // namespace

bool AddLvwXref1(Application& app, TextView sIslandNr, CopyProgress& progress) {
    Table& links = app.lvwXref;
    app.lvwXref1.SetSorted(false);
    app.lvwXref1.Clear();
    app.ProgressBar1.Set(0);
    progress = {};
    const std::int32_t lNrXref = links.Count();
    const std::uint32_t clearings = links.Clearings();
    TextCopier copier(links.Store(), app.lvwXref1.Store(), TextCopier::Mode::Intern);
    std::optional<TextRef> previousId;
    bool isInIsland = false;
    std::int32_t nextPause = kStatusStep;
    for (std::int32_t& r = ++progress.row; r <= lNrXref; ++r) {
        LookAhead(links, r);
        const TextRef id = links.Item(r).Ref(Xref::IDIndi1);
        if (id != previousId) {
            if (r >= nextPause) {
                nextPause = r + kStatusStep;
                app.pnlMessage.Set(Concat(
                    {kStatus, Decimal(progress.copied), "/", Decimal(lNrXref), " lien(s) copié(s)"_t}));
                app.ProgressBar1.Show(r, lNrXref);
                app.ports.events.Yield();
                if (app.bAbort) return false;
                if (links.Clearings() != clearings) ThrowIndexOutOfRange();
                // The user may have sorted the links. When they are sorted back, those of one person may
                // stand in another order, but no person stands elsewhere: that is why the pause is between
                // two.
                if (!links.Sorted() || links.SortKey() != Xref::IDIndi1 || links.SortOrder() != 0)
                    links.SortBy(Xref::IDIndi1, 0);
            }
            const auto person = app.lvwIn.Find(RowKey(id));
            isInIsland = person && person->Cell(In::IslandNr) == sIslandNr;
            previousId = id;
        }
        if (!isInIsland) continue;
        ++progress.copied;
        const Row link = links.Item(r);
        const TextRef from = copier.Copy(id), to = copier.Copy(link.Ref(Xref::IDIndi2));
        Row copy = app.lvwXref1.Add(std::nullopt, RowKey(from, to), from);
        copy.SetCell(Xref1::Type, copier.Copy(link.Ref(Xref::Type)));
        copy.SetCell(Xref1::Indi2, to);
        copy.SetCell(Xref1::IDFamily, copier.Copy(link.Ref(Xref::IDFamily)));
        copy.SetCell(Xref1::Family, copier.Copy(link.Ref(Xref::Family)));
    }
    app.pnlMessage.Set(
        Concat({kStatus, Decimal(lNrXref - progress.copied), " éliminés / "_t, Decimal(lNrXref)}));
    return true;
}

IslandGraph::IslandGraph(Application& app) : app_(app) {
    Table& links = app.lvwXref1;
    links.SortBy(Xref1::Indi1, 0);
    nodeOfSymbol_.assign(links.Store().InternedCount(), kNobody);
    std::vector<std::int32_t> firstLinks, targets;
    // Every identifier in the first column has a row in lvwIn, or it would not have been copied.
    const auto addNode = [&](TextRef id, const Row& person) {
        nodeOfSymbol_[id.Symbol()] = static_cast<std::int32_t>(ids.size());
        ids.push_back(person.Ref(In::ID));
    };
    TextRef previousId;
    for (std::int32_t i = 1; i <= links.Count(); ++i) {
        const TextRef id = links.Item(i).Ref(Xref1::Indi1);
        if (id == previousId) continue;
        addNode(id, app.lvwIn.Item(links.Store().Get(id)));
        firstLinks.push_back(i - 1);
        previousId = id;
    }
    // A file that contradicts itself may link to a person from whom no link leaves.
    for (std::int32_t i = 1; i <= links.Count(); ++i) {
        const TextRef id = links.Item(i).Ref(Xref1::Indi2);
        if (id.IsEmpty() || nodeOfSymbol_[id.Symbol()] != kNobody) continue;
        const auto person = app.lvwIn.Find(links.Store().Get(id));
        if (person) addNode(id, *person);
    }
    firstLinks.resize(ids.size() + 1, links.Count());
    targets.reserve(static_cast<std::size_t>(links.Count()));
    linkKeys_.reserve(targets.capacity());
    kinds_.reserve(targets.capacity());
    KindReader reader(links.Store());
    for (std::int32_t i = 1; i <= links.Count(); ++i) {
        const Row link = links.Item(i);
        const TextRef id = link.Ref(Xref1::Indi2);
        linkKeys_.emplace_back(link.Ref(Xref1::Indi1), id);
        kinds_.push_back(reader.Read(link.Ref(Xref1::Type), link.Ref(Xref1::IDFamily)));
        targets.push_back(id.IsEmpty() ? kNobody : nodeOfSymbol_[id.Symbol()]);
    }
    graph = LinkGraph(std::move(firstLinks), std::move(targets));
}

std::int32_t IslandGraph::NodeOf(TextView sId) const {
    const TextRef id = app_.lvwXref1.Store().FindInterned(sId);
    const std::int32_t node =
        id.IsEmpty() ? kNobody : At(nodeOfSymbol_, static_cast<std::int32_t>(id.Symbol()));
    if (node == kNobody) throw Failure(FailureKind::KeyNotFound, sId);
    return node;
}

Row IslandGraph::RowOfLink(std::int32_t link) const {
    const auto row = app_.lvwXref1.Find(At(linkKeys_, link));
    if (!row) throw Failure(FailureKind::KeyNotFound);
    return *row;
}

std::vector<LinkKind> IslandGraph::KindsOf(const std::vector<std::int32_t>& links) const {
    std::vector<LinkKind> kinds;
    kinds.reserve(links.size());
    for (const std::int32_t link : links) kinds.push_back(At(kinds_, link));
    return kinds;
}

}  // namespace swiftroll::modKinship
