#pragma once

#include <QAction>
#include <QWidget>
#include <functional>
#include <vector>

namespace swiftroll::ui {

/// A caption as plain text: "&&" is an ampersand, "&" alone marks the key of the next letter.
QString PlainCaption(const QString& caption);
/// The letter that a caption marks as its key, in capitals; no letter when it marks none.
QChar MnemonicOf(const QString& caption);
/// Another caption for somebody who has a letter: the same one is marked, or else the first one.
QString WithSameMnemonic(const QString& caption, const QString& before);

/// Somebody whose caption can mark a letter.
struct MnemonicBearer {
    QString caption;
    /// Gets the caption with the letter marked.
    std::function<void(const QString&)> show;
    /// Whether a letter that another one has is better than none: the toolkit then goes from one to the
    /// other.
    bool mayShare = true;
};
/// Marks letters, a different one for each as far as they go; a letter that a caption marks already stays.
/// `taken` are those that belong to others, in capitals. Gives all that are taken now.
QString AssignMnemonics(const std::vector<MnemonicBearer>& bearers, const QString& taken = {});

/// The same for the entries of a menu.
QString AssignMnemonics(const QList<QAction*>& entries);
/// The same for the fields and the buttons of a page that are not those of `others`. Tool buttons
/// have none: there are more of them than letters.
QString AssignMnemonics(const QWidget& page, const QString& taken = {},
                        const std::vector<const QWidget*>& others = {});

}  // namespace swiftroll::ui
