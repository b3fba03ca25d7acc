#pragma once

#include <QAccessibleWidget>
#include <QLabel>
#include <functional>

namespace swiftroll::ui {

/// A text that leads somewhere: by a click, by Enter and by the space bar. Nothing of the text is markup.
class LinkLabel : public QLabel {
  public:
    /// `name` is what a screen reader says.
    LinkLabel(const QString& text, const QString& name, std::function<void()> onChosen);

    void Choose() const { onChosen_(); }

  protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    std::function<void()> onChosen_;
};

/// The same for assistive programs, which take a label for plain text.
class LinkLabelAccess : public QAccessibleWidget {
  public:
    explicit LinkLabelAccess(LinkLabel& label)
        : QAccessibleWidget(&label, QAccessible::Link), label_(label) {}

    /// For the toolkit: the interface of a link, nullptr for every other object.
    static QAccessibleInterface* Make(const QString& key, QObject* object);

    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& action) override;

  private:
    LinkLabel& label_;
};

}  // namespace swiftroll::ui
