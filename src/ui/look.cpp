#include "look.h"

#include <QApplication>
#include <QPalette>
#include <QProxyStyle>

#include "themed_icon.h"

namespace swiftroll::ui {
namespace {

struct Shades {
    QRgb selection, selectedText;  // of the window that the user works with
    QRgb otherSelection, otherSelectedText;
    QRgb link;
};
constexpr Shades kLight{0xFF24566B, 0xFFFFFFFF, 0xFFBFD6DE, 0xFF10262F, 0xFF24566B};
constexpr Shades kDark{0xFF2F6F88, 0xFFFFFFFF, 0xFF34505B, 0xFFE6F1F5, 0xFF8CC4DA};

/// The desktop's style with the program's signs on boxes and on their buttons.
class ProgramStyle : public QProxyStyle {
  public:
    QIcon standardIcon(StandardPixmap sign, const QStyleOption* option,
                       const QWidget* widget) const override {
        const char* const name = NameOf(sign);
        if (name == nullptr) return QProxyStyle::standardIcon(sign, option, widget);
        return ThemedIcon(QLatin1String(name));
    }
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override {
        if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 1;
        return QProxyStyle::styleHint(hint, option, widget, answer);
    }

  private:
    static const char* NameOf(StandardPixmap sign) {
        switch (sign) {
            case SP_MessageBoxQuestion:
                return "box-question";
            case SP_MessageBoxInformation:
                return "box-information";
            case SP_MessageBoxWarning:
                return "box-warning";
            case SP_MessageBoxCritical:
                return "box-error";
            case SP_DialogOkButton:
            case SP_DialogYesButton:
            case SP_DialogYesToAllButton:
            case SP_DialogApplyButton:
                return "button-yes";
            case SP_DialogNoButton:
            case SP_DialogNoToAllButton:
            case SP_DialogCloseButton:
                return "button-no";
            case SP_DialogCancelButton:
            case SP_DialogDiscardButton:
            case SP_DialogAbortButton:
                return "button-cancel";
            case SP_DialogOpenButton:
                return "open";
            case SP_DialogSaveButton:
                return "save";
            case SP_DialogHelpButton:
                return "help";
            default:
                return nullptr;
        }
    }
};

}  // namespace

void SetUpLook() {
    QApplication::setStyle(new ProgramStyle);  // owned by the application
    FollowTheme();
}

void FollowTheme() {
    QPalette palette = QApplication::palette();
    const Shades& shades = palette.color(QPalette::Window).lightness() < 128 ? kDark : kLight;
    if (palette.color(QPalette::Active, QPalette::Highlight).rgb() == shades.selection) return;
    QPalette own;
    own.setColor(QPalette::Highlight, QColor(shades.selection));
    own.setColor(QPalette::HighlightedText, QColor(shades.selectedText));
    own.setColor(QPalette::Inactive, QPalette::Highlight, QColor(shades.otherSelection));
    own.setColor(QPalette::Inactive, QPalette::HighlightedText, QColor(shades.otherSelectedText));
    own.setColor(QPalette::Link, QColor(shades.link));
    QApplication::setPalette(own);
}

}  // namespace swiftroll::ui
