#include "app/feedback.h"

#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll {

BoxAnswer Feedback::Box(TextView suffix, TextView text, BoxButtons buttons, BoxIcon icon, BoxTopic topic,
                        std::optional<BoxAnswer> preset) {
    return dialogs_.Show({Concat({caption_(), suffix}), Text(text), buttons, icon, topic, preset});
}

void Feedback::RequestAbort() {
    bAbort = true;
    pnlMessage.Set("Interrompu par l'utilisateur !"_t);
}

}  // namespace swiftroll
