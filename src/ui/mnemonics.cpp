#include "mnemonics.h"

#include <QAbstractButton>
#include <QLabel>
#include <QToolButton>
#include <algorithm>
#include <map>

namespace swiftroll::ui {
namespace {

constexpr char16_t kAmpersand = u'&';

bool IsKey(QChar c) { return c.isLetterOrNumber() && c.unicode() < 0x80; }

/// The letters of a caption that can be its key, the best first: those that begin a word, then all.
QString CandidatesOf(const QString& plain) {
    QString initials, all;
    for (qsizetype i = 0; i < plain.size(); ++i) {
        if (!IsKey(plain[i])) continue;
        const QChar letter = plain[i].toUpper();
        const bool isInitial = i == 0 || !plain[i - 1].isLetterOrNumber();
        QString& list = isInitial ? initials : all;
        if (!list.contains(letter)) list += letter;
    }
    for (const QChar letter : initials) all.remove(letter);
    return initials + all;
}

/// The caption with its first such letter marked, at the beginning of a word if it begins one.
QString Marked(const QString& plain, QChar letter) {
    qsizetype place = -1;
    for (qsizetype i = 0; i < plain.size(); ++i) {
        if (plain[i].toUpper() != letter) continue;
        const bool isInitial = i == 0 || !plain[i - 1].isLetterOrNumber();
        if (place < 0 || isInitial) place = i;
        if (isInitial) break;
    }
    QString caption;
    for (qsizetype i = 0; i < plain.size(); ++i) {
        if (i == place || plain[i] == kAmpersand) caption += kAmpersand;
        caption += plain[i];
    }
    return caption;
}

/// Letters and those who have them, each one letter at most.
class Letters {
  public:
    Letters(const std::vector<MnemonicBearer>& bearers, const QString& taken) : taken_(taken) {
        for (const MnemonicBearer& bearer : bearers)
            candidates_.push_back(CandidatesOf(PlainCaption(bearer.caption)));
    }
    /// For a letter that is marked already.
    void Keep(std::size_t bearer, QChar letter) {
        if (owners_.try_emplace(letter, bearer).second) kept_ += letter;
    }
    /// Finds a letter; those who have one may have to take another one for it.
    bool Give(std::size_t bearer) {
        asked_.clear();
        return Find(bearer);
    }
    QChar Of(std::size_t bearer) const {
        for (const auto& [letter, owner] : owners_) {
            if (owner == bearer) return letter;
        }
        return {};
    }
    QChar Shared(std::size_t bearer) const {
        for (const QChar letter : candidates_[bearer]) {
            if (!taken_.contains(letter)) return letter;
        }
        return {};
    }
    QString All() const {
        QString all = taken_;
        for (const auto& [letter, owner] : owners_) all += letter;
        return all;
    }

  private:
    bool Find(std::size_t bearer) {
        for (const QChar letter : candidates_[bearer]) {
            if (taken_.contains(letter) || kept_.contains(letter) || asked_.contains(letter)) continue;
            asked_ += letter;
            const auto owner = owners_.find(letter);
            if (owner != owners_.end() && !Find(owner->second)) continue;
            owners_[letter] = bearer;
            return true;
        }
        return false;
    }

    QString taken_, kept_, asked_;
    std::vector<QString> candidates_;
    std::map<QChar, std::size_t> owners_;
};

bool IsOf(const QWidget& widget, const std::vector<const QWidget*>& roots) {
    return std::any_of(roots.begin(), roots.end(),
                       [&](const QWidget* root) { return root == &widget || root->isAncestorOf(&widget); });
}

template <class Widget>
MnemonicBearer BearerOf(Widget& widget, const QString& caption, void (Widget::*show)(const QString&),
                        bool isField) {
    return {caption, [&widget, show](const QString& text) { (widget.*show)(text); }, isField};
}

}  // namespace

QString PlainCaption(const QString& caption) {
    QString plain = caption;
    return plain.replace(QStringLiteral("&&"), QStringLiteral("\x01"))
        .remove(QLatin1Char('&'))
        .replace(QLatin1Char('\x01'), QLatin1Char('&'));
}

QChar MnemonicOf(const QString& caption) {
    for (qsizetype i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != kAmpersand) continue;
        if (caption[++i] != kAmpersand) return caption[i].toUpper();
    }
    return {};
}

QString WithSameMnemonic(const QString& caption, const QString& before) {
    const QChar letter = MnemonicOf(before);
    if (letter.isNull() || !MnemonicOf(caption).isNull()) return caption;
    const QString plain = PlainCaption(caption), candidates = CandidatesOf(plain);
    if (candidates.isEmpty()) return caption;
    return Marked(plain, candidates.contains(letter) ? letter : candidates[0]);
}

QString AssignMnemonics(const std::vector<MnemonicBearer>& bearers, const QString& taken) {
    Letters letters(bearers, taken);
    for (std::size_t i = 0; i < bearers.size(); ++i) {
        const QChar letter = MnemonicOf(bearers[i].caption);
        if (!letter.isNull()) letters.Keep(i, letter);
    }
    for (const bool mayShare : {true, false}) {
        for (std::size_t i = 0; i < bearers.size(); ++i) {
            if (bearers[i].mayShare == mayShare && MnemonicOf(bearers[i].caption).isNull()) letters.Give(i);
        }
    }
    for (std::size_t i = 0; i < bearers.size(); ++i) {
        if (!MnemonicOf(bearers[i].caption).isNull()) continue;
        QChar letter = letters.Of(i);
        if (letter.isNull() && bearers[i].mayShare) letter = letters.Shared(i);
        if (!letter.isNull()) bearers[i].show(Marked(PlainCaption(bearers[i].caption), letter));
    }
    return letters.All();
}

QString AssignMnemonics(const QList<QAction*>& entries) {
    std::vector<MnemonicBearer> bearers;
    for (QAction* entry : entries) {
        if (entry->isSeparator()) continue;
        bearers.push_back({entry->text(), [entry](const QString& text) { entry->setText(text); }});
    }
    return AssignMnemonics(bearers);
}

QString AssignMnemonics(const QWidget& page, const QString& taken,
                        const std::vector<const QWidget*>& others) {
    std::vector<MnemonicBearer> bearers;
    for (QWidget* widget : page.findChildren<QWidget*>()) {
        if (IsOf(*widget, others)) continue;
        if (auto* label = qobject_cast<QLabel*>(widget)) {
            if (label->buddy() != nullptr)
                bearers.push_back(BearerOf(*label, label->text(), &QLabel::setText, true));
        } else if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
            if (qobject_cast<QToolButton*>(widget) != nullptr) continue;
            const bool isField = button->isCheckable();
            bearers.push_back(BearerOf(*button, button->text(), &QAbstractButton::setText, isField));
        }
    }
    return AssignMnemonics(bearers, taken);
}

}  // namespace swiftroll::ui
