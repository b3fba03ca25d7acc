#include "app/application.h"

#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll {

Application::Application(const Ports& applicationPorts, std::span<const FormatOption> formats)
    : OptionRecord(formats),
      StatusBar(applicationPorts.status),
      ports(applicationPorts),
      trail(ports, *this,
            {[this] { return MainCaption(); },
             [this] {
                 return PathOf(sUserAppData, Concat({sProduct, ".log"}));
             },
             [this] { return sRunStart; }}) {
    for (Table* table : All()) table->OnPause = [this] { ports.status.StatusChanged(); };
}

Text Application::MainCaption() const { return Concat({sProduct, " (v", sVersion, ")"}); }

BoxAnswer Application::Box(TextView suffix, TextView text, BoxButtons buttons, BoxIcon icon, BoxTopic topic,
                           std::optional<BoxAnswer> preset) {
    return ports.dialogs.Show({Concat({MainCaption(), suffix}), Text(text), buttons, icon, topic, preset});
}

void Application::InitIndexes() { positions.InitIndexes(*this, ports.dialogs, MainCaption()); }

Text Application::PathOf(TextView folder, TextView name) const {
    return Concat({folder, ports.folders.Separator(), name});
}

void Application::RequestAbort() {
    bAbort = true;
    pnlMessage.Set("Interrompu par l'utilisateur !"_t);
}

}  // namespace swiftroll
