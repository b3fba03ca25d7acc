#include "check/file_pass.h"

#include <algorithm>

#include "check/quoted.h"
#include "gedcom/date_reading.h"
#include "gedcom/tag.h"
#include "text/numbers.h"

namespace swiftroll::modCheck {

using modReadGedcom::GetXrefUsed;
using modReadGedcom::TagCode;

namespace {

constexpr std::uint32_t kStatusStep = 1000;
constexpr TextView kVoid = "@VOID@";

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool IsTag(TextView tag) {
    return !tag.empty() && std::all_of(tag.begin(), tag.end(), [](char c) {
        return IsDigit(c) || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_';
    });
}

/// Whether a value names a record: two "@", between them neither a third one nor the "#" of an escape.
bool IsReference(TextView used) {
    return used.size() > 2 && used[1] != '#' && used.find('@', 1) == used.size() - 1;
}

OpenEnds OpenEndsOf(TextView date) {
    date = TrimLeft(date);
    const bool isFrom = date.starts_with("FROM ");
    return {date.starts_with("BEF") || date.starts_with("TO "),
            date.starts_with("AFT") || (isFrom && date.find(" TO ") == TextView::npos)};
}

}  // namespace

bool FilePass::Run(std::unique_ptr<File> file) {
    const auto length = static_cast<double>(file->Length());
    modReadGedcom::LineScanner scanner(std::move(file));
    const ScopedFlag canStop(app_.bCanStop);
    while (scanner.Next()) {
        if (scanner.LineNumber() / kStatusStep != number_ / kStatusStep)
            app_.ProgressBar1.Show(static_cast<double>(scanner.ReadPosition()), length);
        number_ = scanner.LineNumber();
        line_.sLine = scanner.Line();
        if (!TakeLine()) return true;
        if (line_.iLevel > 0) continue;
        app_.ports.events.Yield();
        if (app_.bAbort) return false;
    }
    number_ = scanner.LineNumber();
    CheckEnd(scanner.Line());
    return true;
}

void FilePass::Tell(Rule rule, TextView text) { findings_.Add(rule, number_, records_.ids.Get(id_), text); }

Text FilePass::Shown(TextView bytes) const {
    return Quoted(decoder_ != nullptr ? decoder_->Decode(bytes) : bytes);
}

bool FilePass::TakeLine() {
    const TextView whole = line_.sLine;
    const bool isSplit = !line_.Split();
    if (isSplit && !line_.hasOneDigit) {
        Tell(Rule::LevelTooDeep, Concat({"La lecture s'arrête ici, au niveau "_t, Decimal(line_.iLevel),
                                         " : la suite n'est ni lue ni contrôlée."_t}));
        return false;
    }
    if (!isSplit || !IsTag(line_.sTag)) {
        Tell(Rule::NoGedcom, Shown(whole));
        return true;
    }
    CheckLevel(whole);
    if (line_.iLevel == 0) {
        BeginRecord();
    } else {
        TakeSubLine();
    }
    return true;
}

void FilePass::CheckLevel(TextView whole) {
    // A byte order mark is no fault.
    if (!IsDigit(whole.front()) && number_ > 1) Tell(Rule::JunkBeforeLevel, Shown(whole));
    if (line_.iLevel > previousLevel_ + 1) {
        const Text from = previousLevel_ < 0
                              ? Text("Le fichier commence au niveau "_t)
                              : Concat({"Du niveau "_t, Decimal(previousLevel_), " au niveau "});
        Tell(Rule::LevelJump, Concat({from, Decimal(line_.iLevel), " : ", Shown(whole)}));
    }
    previousLevel_ = line_.iLevel;
}

void FilePass::BeginRecord() {
    id_ = records_.ids.Intern(line_.sXrefDef);
    context_ = Context::Other;
    event_ = Event::Other;
    hasTrailer_ = line_.sTag == "TRLR";
    if (line_.sTag == "INDI") {
        BeginPerson();
    } else if (line_.sTag == "FAM") {
        BeginFamily();
    } else {
        HasOwnIdentifier(false);
    }
}

bool FilePass::HasOwnIdentifier(bool needsOne) {
    if (id_.IsEmpty()) {
        if (needsOne) {
            Tell(Rule::NoIdentifier,
                 Concat({"Rien ne peut renvoyer à cette fiche "_t, line_.sTag, " sans identifiant."}));
        }
        return false;
    }
    if (const std::uint32_t first = records_.LineOf(id_); first != 0) {
        Tell(Rule::DoubleIdentifier,
             Concat({"Une fiche a déjà cet identifiant à la ligne "_t, Decimal(first), "."}));
        return false;
    }
    records_.NoteRecord(id_, records_.ids.Intern(line_.sTag), number_);
    return true;
}

/// Of two persons with one identifier, a read takes the first.
void FilePass::BeginPerson() {
    const bool isNew = HasOwnIdentifier(true);
    if (!isNew && records_.PersonOf(id_) != kNone) return;
    context_ = Context::Person;
    records_.AddPerson({id_, number_, static_cast<std::uint32_t>(records_.personLinks.size()), {}, {}});
}

/// Families with one identifier are one.
void FilePass::BeginFamily() {
    HasOwnIdentifier(true);
    context_ = Context::Family;
    records_.AddFamily({id_, number_, static_cast<std::uint32_t>(records_.memberLinks.size()), 0, {}});
}

void FilePass::TakeSubLine() {
    const std::uint64_t tag = TagCode(line_.sTag);
    if (line_.iLevel == 1) {
        event_ = Event::Other;
        if (context_ == Context::Person) {
            if (tag == TagCode("FAMS")) return AddLink(LinkKind::Fams);
            if (tag == TagCode("FAMC")) return AddLink(LinkKind::Famc);
            if (tag == TagCode("BIRT")) event_ = Event::Birth;
            if (tag == TagCode("DEAT")) event_ = Event::Death;
        } else if (context_ == Context::Other) {
            if (tag == TagCode("CHAR")) return TakeCharset();
        } else {
            if (tag == TagCode("HUSB")) return AddLink(LinkKind::Husband);
            if (tag == TagCode("WIFE")) return AddLink(LinkKind::Wife);
            if (tag == TagCode("CHIL")) return AddLink(LinkKind::Child);
            if (tag == TagCode("MARR")) event_ = Event::Marriage;
        }
    } else if (tag == TagCode("DATE") && line_.iLevel == 2 && context_ != Context::Other) {
        return TakeDate();
    }
    TakeReference();
}

void FilePass::AddLink(LinkKind kind) {
    const TextView used = GetXrefUsed(line_.sValue);
    if (used.empty()) {
        return Tell(Rule::MissingRecord,
                    Concat({line_.sTag, " sans identifiant entre deux @ : "_t, Shown(line_.sValue)}));
    }
    if (used == kVoid) return Tell(Rule::VoidReference, line_.sTag);
    const bool isPerson = context_ == Context::Person;
    const std::size_t owner = (isPerson ? records_.persons.size() : records_.families.size()) - 1;
    (isPerson ? records_.personLinks : records_.memberLinks)
        .push_back({static_cast<std::uint32_t>(owner), records_.ids.Intern(used), number_, kind});
}

void FilePass::TakeReference() {
    const TextView value = line_.sValue;
    if (value.empty() || (value.front() != '@' && value.front() != ' ')) return;
    const TextView used = GetXrefUsed(value);
    if (!IsReference(used)) return;
    const std::uint64_t tag = TagCode(line_.sTag);
    if (tag == TagCode("CONT") || tag == TagCode("CONC")) return;
    if (used == kVoid) return Tell(Rule::VoidReference, line_.sTag);
    const TextRef target = records_.ids.Intern(used);
    const bool needsItsKind =
        std::ranges::find(modReadGedcom::kReferredTags, line_.sTag) != std::end(modReadGedcom::kReferredTags);
    const TextRef needed = needsItsKind ? records_.ids.Intern(line_.sTag) : TextRef();
    if (records_.Has(target, needed)) return;
    records_.openReferences.push_back({id_, target, records_.ids.Intern(line_.sTag), needed, number_});
}

/// A read takes the first one that it meets, in whatever record.
void FilePass::TakeCharset() {
    if (declared_.line != 0) return;
    declared_ = {number_, Text(line_.sValue)};
    if (decoder_ != nullptr) decoder_->Declare(line_.sValue);
}

void FilePass::TakeDate() {
    const TextView value = decoder_ != nullptr ? decoder_->Decode(line_.sValue) : line_.sValue;
    const modReadGedcom::DateReading date = modReadGedcom::ReadDate(value, app_.bCalendarsRead);
    const modReadGedcom::Years& years = date.years;
    if (years.AreNone() || date.isMisread) {
        // Only the grammar of the calendars has the years of a date that is misread.
        const TextView remedy =
            date.isMisread ? " (« Lire les calendriers et toutes les années » la lit)"_t : TextView();
        Tell(Rule::NoYear, Concat({Quoted(value), " : ", NoYearReason(value, date), remedy, "."}));
    }
    // Years that the date does not mean contradict nothing.
    const OpenEnds ends = date.isMisread ? OpenEnds{true, true} : OpenEndsOf(value);
    if (event_ == Event::Birth) records_.persons.back().birth = ends;
    if (event_ == Event::Death) records_.persons.back().death = ends;
    FamilyRecord* const family = event_ == Event::Marriage ? &records_.families.back() : nullptr;
    if (family == nullptr || years.AreNone() || date.isMisread || family->marriageLine != 0) return;
    family->marriageLine = number_;
    if (!ends.before) family->marriage.first = static_cast<std::int16_t>(years.lYearMin);
    if (!ends.after) family->marriage.last = static_cast<std::int16_t>(years.lYearMax);
}

/// `unread` is the last line where a read drops it, because its end is the file's last byte or missing.
void FilePass::CheckEnd(TextView unread) {
    id_ = {};
    line_.sLine = unread;
    const bool isTrailer = !unread.empty() && !line_.Split() && line_.iLevel == 0 && line_.sTag == "TRLR";
    if (isTrailer || (unread.empty() && hasTrailer_)) return;
    Tell(Rule::LostEnd,
         unread.empty()
             ? Text("La dernière ligne n'est pas « 0 TRLR » : le fichier est peut-être coupé."_t)
             : Concat({"La dernière ligne n'est pas lue : ajoutez « 0 TRLR » derrière "_t, Shown(unread)}));
}

}  // namespace swiftroll::modCheck
