#include "app/application.h"

namespace swiftroll {

Application::Application(const Ports& applicationPorts, std::span<const FormatOption> formats)
    : OptionRecord(formats),
      Feedback(applicationPorts, *this,
               {[this] { return MainCaption(); },
                [this] {
                    return PathOf(sUserAppData, Concat({sProduct, ".log"}));
                },
                [this] { return sRunStart; }}),
      ports(applicationPorts) {
    for (Table* table : All()) table->OnPause = [this] { ports.status.StatusChanged(); };
}

Table* Application::TableOf(Tab tab) {
    Table* const tables[] = {&lvwIn, &lvwOut, &lvwFamilyXref, &lvwXref, &lvwFamily, &lvwKinship};
    const auto number = static_cast<std::size_t>(tab);
    return number < std::size(tables) ? tables[number] : nullptr;
}

Text Application::PathOf(TextView folder, TextView name) const {
    return Concat({folder, ports.folders.Separator(), name});
}

}  // namespace swiftroll
