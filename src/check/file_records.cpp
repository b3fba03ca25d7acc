#include "check/file_records.h"

namespace swiftroll::modCheck {

TextView TagOf(LinkKind kind) {
    constexpr TextView kTags[] = {"HUSB", "WIFE", "CHIL", "FAMS", "FAMC"};
    return kTags[static_cast<std::size_t>(kind)];
}

void FileRecords::Put(BySymbol& values, TextRef id, std::uint32_t value, std::uint32_t none) {
    if (id.IsEmpty()) return;
    if (id.Symbol() >= values.size()) values.resize(id.Symbol() + std::size_t{1}, none);
    values[id.Symbol()] = value;
}

void FileRecords::NoteRecord(TextRef id, TextRef tag, std::uint32_t line) {
    Put(lines_, id, line, 0);
    if (id.Symbol() >= tags_.size()) tags_.resize(id.Symbol() + std::size_t{1});
    tags_[id.Symbol()] = tag;
}

void FileRecords::AddPerson(const PersonRecord& person) {
    if (PersonOf(person.id) == kNone)
        Put(persons_, person.id, static_cast<std::uint32_t>(persons.size()), kNone);
    persons.push_back(person);
}

void FileRecords::AddFamily(const FamilyRecord& family) {
    if (FamilyOf(family.id) == kNone)
        Put(families_, family.id, static_cast<std::uint32_t>(families.size()), kNone);
    families.push_back(family);
}

}  // namespace swiftroll::modCheck
