#pragma once

#include <cstdint>

namespace swiftroll {

/// Column indexes of the tables that logic addresses, as the schema fixes them.
namespace In {
enum : std::int16_t {
    ID = 1,
    LastName,
    FirstName,
    BirthPlace,
    BirthMin,
    BirthMax,
    DeathPlace,
    DeathMin,
    DeathMax,
    Place,
    DateMin,
    DateMax,
    Sex,
    MarrPlace,
    MarrMin,
    MarrMax,
    IslandNr
};
}
namespace Out {
enum : std::int16_t { ID = 1, LastName, Number, Place, DateMin, DateMax };
}
namespace Family {
enum : std::int16_t { IDFam = 1, IDHusb, IDWife, IDFams, MarrPlace, MarrMin, MarrMax, Fam, Husb, Wife, Fams };
}
namespace FamilyXref {
enum : std::int16_t { IDFam = 1, Type, IDIndi, Sex, Family, Indi };
}
namespace Xref {
enum : std::int16_t { IDIndi1 = 1, Type, IDIndi2, Indi1, Indi2, IDFamily, Family };
}
// Despite their keys, `Indi1` and `Indi2` hold identifiers.
namespace Xref1 {
enum : std::int16_t { Indi1 = 1, Type, Indi2, IDFamily, Family };
}
namespace Kinship {
enum : std::int16_t { SeqNr = 1, IDIndi, Indi, Type, IDFamily, Family, NrSpouses, NrLink };
}

}  // namespace swiftroll
