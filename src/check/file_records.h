#pragma once

#include <limits>
#include <vector>

#include "tables/block_vector.h"
#include "tables/text_store.h"

namespace swiftroll::modCheck {

/// No person, no family.
inline constexpr std::uint32_t kNone = std::numeric_limits<std::uint32_t>::max();

/// The years between which something happened; the default is any year at all, so that no comparison of
/// unknown years finds anything.
struct YearSpan {
    static constexpr std::int16_t kEver = 30000;
    std::int16_t first = -kEver, last = kEver;
};

/// A date that says "before" or "after" has one end only.
struct OpenEnds {
    bool before = false, after = false;
};

/// The lines that tie a person to a family, on both sides.
enum class LinkKind : std::uint8_t { Husband, Wife, Child, Fams, Famc };

/// The tag that a kind of link has in the file.
TextView TagOf(LinkKind kind);

struct Link {
    /// The person or family whose record holds the line.
    std::uint32_t owner;
    /// The identifier that it names.
    TextRef target;
    std::uint32_t line;
    LinkKind kind;
};

/// A line that names another record, of whatever kind.
struct Reference {
    TextRef owner, target, tag;
    /// The tag that the record must have, empty for any.
    TextRef needed;
    std::uint32_t line;
};

struct PersonRecord {
    TextRef id;
    std::uint32_t line;
    /// Place of the first of its links among `personLinks`; they end where those of the next one begin.
    std::uint32_t firstLink;
    OpenEnds birth, death;
};

struct FamilyRecord {
    TextRef id;
    std::uint32_t line;
    std::uint32_t firstLink;  // among `memberLinks`
    /// Line of the marriage that has the years, 0 for none.
    std::uint32_t marriageLine = 0;
    YearSpan marriage;
};

/// What stands in a file and not in the tables: where records and links stand, and what each side says of a
/// family. All identifiers are interned in `ids`, whose numbers are the indexes.
struct FileRecords {
    TextStore ids;
    std::vector<PersonRecord> persons;
    std::vector<FamilyRecord> families;
    BlockVector<Link> personLinks, memberLinks;
    /// Lines that name a record which had not come yet, or which is of another kind.
    BlockVector<Reference> openReferences;

    /// Line of the record that has an identifier, 0 for none.
    std::uint32_t LineOf(TextRef id) const { return At(lines_, id, 0); }
    /// Its number among the persons or among the families, `kNone` for none.
    std::uint32_t PersonOf(TextRef id) const { return At(persons_, id, kNone); }
    std::uint32_t FamilyOf(TextRef id) const { return At(families_, id, kNone); }
    /// The same for an identifier of another store.
    std::uint32_t PersonOf(TextView id) const { return PersonOf(ids.FindInterned(id)); }

    /// Of the families with the same identifier, the first.
    std::uint32_t CanonicalFamily(std::uint32_t family) const {
        const std::uint32_t first = FamilyOf(families[family].id);
        return first == kNone ? family : first;
    }

    /// The tag of that record, empty for none; it is interned in `ids`.
    TextRef TagOf(TextRef id) const {
        return !id.IsEmpty() && id.Symbol() < tags_.size() ? tags_[id.Symbol()] : TextRef();
    }
    /// Whether there is a record of that identifier, and with a tag, unless `tag` is empty.
    bool Has(TextRef id, TextRef tag) const { return LineOf(id) != 0 && (tag.IsEmpty() || TagOf(id) == tag); }
    void NoteRecord(TextRef id, TextRef tag, std::uint32_t line);
    void AddPerson(const PersonRecord& person);
    void AddFamily(const FamilyRecord& family);

    /// Calls `visit(link)` for the links of a person or of a family, in the order of the file.
    template <class Visitor>
    void VisitPersonLinks(std::size_t person, const Visitor& visit) const {
        VisitLinks(persons, personLinks, person, visit);
    }
    template <class Visitor>
    void VisitMemberLinks(std::size_t family, const Visitor& visit) const {
        VisitLinks(families, memberLinks, family, visit);
    }

  private:
    using BySymbol = std::vector<std::uint32_t>;
    static std::uint32_t At(const BySymbol& values, TextRef id, std::uint32_t none) {
        return !id.IsEmpty() && id.Symbol() < values.size() ? values[id.Symbol()] : none;
    }
    static void Put(BySymbol& values, TextRef id, std::uint32_t value, std::uint32_t none);
    template <class Record, class Visitor>
    static void VisitLinks(const std::vector<Record>& records, const BlockVector<Link>& links,
                           std::size_t record, const Visitor& visit) {
        const std::size_t end = record + 1 < records.size() ? records[record + 1].firstLink : links.size();
        for (std::size_t i = records[record].firstLink; i < end; ++i) visit(links[i]);
    }

    BySymbol lines_, persons_, families_;
    std::vector<TextRef> tags_;
};

}  // namespace swiftroll::modCheck
