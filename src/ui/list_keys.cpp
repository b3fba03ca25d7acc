#include "list_keys.h"

namespace swiftroll::ui {

std::optional<ListKey> ListKeyOf(const QKeyEvent& event) {
    using Code = ListKey::Code;
    ListKey key;
    key.shift = (event.modifiers() & Qt::ShiftModifier) != 0;
    key.ctrl = (event.modifiers() & Qt::ControlModifier) != 0;
    key.alt = (event.modifiers() & Qt::AltModifier) != 0;
    switch (event.key()) {
        case Qt::Key_Menu:
            key.code = Code::ContextMenu;
            break;
        case Qt::Key_F10:
            key.code = Code::F10;
            break;
        case Qt::Key_Alt:  // alone it leads to the menu bar
        case Qt::Key_AltGr:
            return std::nullopt;
        default:
            if (event.key() < Qt::Key_A || event.key() > Qt::Key_Z) break;
            key.code = Code::Letter;
            key.letter = static_cast<char>('A' + (event.key() - Qt::Key_A));
    }
    const bool isCommand = key.code == Code::Letter && key.ctrl;
    return key.OpensMenu() || isCommand ? std::optional(key) : std::nullopt;
}

}  // namespace swiftroll::ui
