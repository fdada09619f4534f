#include "UI/Kit/Accessibility.h"

#include "UI/Kit/PopUpButton.h"
#include "UI/Kit/Stepper.h"
#include "UI/Kit/TableAccess.h"
#include "UI/Kit/TableView.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessibleObject>
#include <QAccessibleWidget>
#include <QApplication>
#include <QPushButton>
#include <QTextDocumentFragment>
#include <QToolButton>
#include <QWindow>

namespace {

/// The application with all its windows. Qt's own leaves out pop-ups, and with them the panel of the status
/// area.
class ApplicationInterface : public QAccessibleApplication {
public:
    int childCount() const override { return static_cast<int>(windows().size()); }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return static_cast<int>(windows().indexOf(child->object()));
    }
    QAccessibleInterface* child(int index) const override {
        return QAccessible::queryAccessibleInterface(windows().value(index));
    }

private:
    static QObjectList windows() {
        QObjectList result;
        for (const QWindow* window : QGuiApplication::topLevelWindows()) {
            const QAccessibleInterface* root = window->accessibleRoot();
            if (root && root->object() && window->type() != Qt::Desktop)
                result.append(root->object());
        }
        return result;
    }
};

/// A widget whose description is no markup. QAccessibleWidget also checks the index of a child, which Qt's
/// own class for scroll areas does not.
class WidgetInterface : public QAccessibleWidget {
public:
    WidgetInterface(QWidget* widget, QAccessible::Role role)
        : QAccessibleWidget(widget, role) {}

    QString text(QAccessible::Text kind) const override {
        const QString text = QAccessibleWidget::text(kind);
        return kind == QAccessible::Description && Qt::mightBeRichText(text)
                   ? QTextDocumentFragment::fromHtml(text).toPlainText()
                   : text;
    }
};

/// A button that a screen reader clicks, also where it means to toggle it.
class ButtonInterface : public WidgetInterface {
public:
    explicit ButtonInterface(QAbstractButton* button)
        : WidgetInterface(button, roleOf(*button)) {}

    QString text(QAccessible::Text kind) const override {
        const QString text = WidgetInterface::text(kind);
        return kind == QAccessible::Name && text.isEmpty() ? button().text().remove(u'&') : text;
    }
    QAccessible::State state() const override {
        QAccessible::State result = WidgetInterface::state();
        result.checkable = button().isCheckable();
        result.checked = button().isChecked();
        result.pressed = button().isDown();
        return result;
    }
    QStringList actionNames() const override {
        QStringList names{button().isCheckable() ? toggleAction() : pressAction()};
        if (button().focusPolicy() != Qt::NoFocus)
            names.append(setFocusAction());
        return widget()->isEnabled() ? names : QStringList();
    }
    void doAction(const QString& name) override {
        if (name == toggleAction() || name == pressAction())
            button().click();
        else
            WidgetInterface::doAction(name);
    }

private:
    QAbstractButton& button() const { return *static_cast<QAbstractButton*>(widget()); }
    static QAccessible::Role roleOf(const QAbstractButton& button) {
        if (button.autoExclusive())
            return button.isCheckable() ? QAccessible::PageTab : QAccessible::Button;
        return button.isCheckable() ? QAccessible::CheckBox : QAccessible::Button;
    }
};

/// A picker with its label as the name. Qt's own has its value there.
class PickerInterface : public WidgetInterface {
public:
    explicit PickerInterface(QComboBox* picker)
        : WidgetInterface(picker, QAccessible::ComboBox) {}

    int childCount() const override { return 1; }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return child->object() == picker().view() ? 0 : -1;
    }
    QAccessibleInterface* child(int index) const override {
        return index == 0 ? QAccessible::queryAccessibleInterface(picker().view()) : nullptr;
    }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? picker().currentText() : WidgetInterface::text(kind);
    }
    QAccessible::State state() const override {
        QAccessible::State result = WidgetInterface::state();
        result.expandable = true;
        result.expanded = picker().view()->isVisible();
        result.hasPopup = true;
        return result;
    }
    QStringList actionNames() const override { return {showMenuAction(), pressAction(), setFocusAction()}; }
    void doAction(const QString& name) override {
        if (name == showMenuAction() || name == pressAction())
            picker().showPopup();
        else
            WidgetInterface::doAction(name);
    }

private:
    QComboBox& picker() const { return *static_cast<QComboBox*>(widget()); }
};

/// A stepper with its number.
class StepperInterface : public WidgetInterface, public QAccessibleValueInterface {
public:
    explicit StepperInterface(Stepper* stepper)
        : WidgetInterface(stepper, QAccessible::SpinBox) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                   : WidgetInterface::interface_cast(type);
    }
    QVariant currentValue() const override { return stepper().value(); }
    void setCurrentValue(const QVariant& value) override { stepper().change(value.toDouble()); }
    QVariant minimumValue() const override { return stepper().range().from; }
    QVariant maximumValue() const override { return stepper().range().to; }
    QVariant minimumStepSize() const override { return stepper().range().step; }

private:
    Stepper& stepper() const { return *static_cast<Stepper*>(widget()); }
};

/// Returns null for what Qt answers well. Called for each class of an object, from its own up to QObject.
QAccessibleInterface* makeInterface(const QString& className, QObject* object) {
    if (object == qApp)
        return new ApplicationInterface;
    auto* widget = qobject_cast<QWidget*>(object);
    if (!widget)
        return nullptr;
    if (auto* stepper = qobject_cast<Stepper*>(widget))
        return new StepperInterface(stepper);
    if (auto* picker = qobject_cast<PopUpButton*>(widget))
        return new PickerInterface(picker);
    if (auto* table = qobject_cast<TableView*>(widget); table && !table->rootIsDecorated())
        return new TableAccess(table); // Qt answers for what has branches of its own
    auto* button = qobject_cast<QAbstractButton*>(widget);
    const bool isQtButton = qobject_cast<QPushButton*>(widget) || qobject_cast<QToolButton*>(widget);
    if (button && (!isQtButton || button->isCheckable()))
        return new ButtonInterface(button);
    if (className == u"QScrollArea")
        return new WidgetInterface(widget, QAccessible::Client);
    if (className == u"QWidget")
        return new WidgetInterface(widget, widget->isWindow() ? QAccessible::Window : QAccessible::Client);
    return nullptr;
}

} // namespace

void Accessibility::install() {
    QAccessible::installFactory(makeInterface);
}
