#include "shell/person_label.h"

#include "tables/columns.h"
#include "text/edit.h"

namespace swiftroll {

Text NameAndYears(const RowView& person) {
    const TextView born = person.Cell(In::BirthMin), died = person.Cell(In::DeathMax);
    Text label = Concat({person.Cell(In::LastName), ", ", person.Cell(In::FirstName)});
    if (!born.empty() || !died.empty()) label += Concat({" (", born, "-", died, ")"});
    return label;
}

}  // namespace swiftroll
