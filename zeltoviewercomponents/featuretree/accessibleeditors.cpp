// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "accessibleeditors_p.h"

#include "accessibletree_p.h"
#include "checkboxeditor.h"
#include "enumeditor.h"
#include "featuretreeview.h"
#include "floateditor.h"
#include "floatslidereditor.h"
#include "inteditor.h"
#include "intslidereditor.h"
#include "toolbuttoneditor.h"
#include "zeltoqtdoublespinbox.h"
#include "zeltoqtspinbox.h"

#include <QAccessibleEditableTextInterface>
#include <QAccessibleTextInterface>
#include <QAccessibleValueInterface>
#include <QAccessibleWidget>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QStyle>
#include <QStyleOptionFrame>

namespace {

bool isChangeable(const QWidget &input, const QLineEdit &lineEdit)
{
    return input.isEnabled() && !lineEdit.isReadOnly();
}

// As typing and Return do.
void enter(QWidget *input, QLineEdit *lineEdit, const QString &text)
{
    if (!isChangeable(*input, *lineEdit)) {
        return;
    }
    lineEdit->selectAll();
    lineEdit->insert(text);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(input, &press);
}

/*! \brief The text of a line edit, which may be a part of \a input. */
class LineText : public QAccessibleTextInterface, public QAccessibleEditableTextInterface
{
public:
    LineText(QWidget *input, QLineEdit *lineEdit)
        : m_input(input)
        , m_lineEdit(lineEdit)
    {
    }
    virtual ~LineText() = default;

    void selection(int number, int *start, int *end) const override
    {
        const bool isAny = number == 0 && m_lineEdit->hasSelectedText();
        *start = isAny ? m_lineEdit->selectionStart() : 0;
        *end = isAny ? m_lineEdit->selectionEnd() : 0;
    }
    int selectionCount() const override { return m_lineEdit->hasSelectedText() ? 1 : 0; }
    void addSelection(int start, int end) override { setSelection(0, start, end); }
    void removeSelection(int) override { m_lineEdit->deselect(); }
    void setSelection(int, int start, int end) override { m_lineEdit->setSelection(start, end - start); }
    int cursorPosition() const override { return m_lineEdit->cursorPosition(); }
    void setCursorPosition(int position) override { m_lineEdit->setCursorPosition(position); }
    QString text(int start, int end) const override { return m_lineEdit->text().mid(start, end - start); }
    int characterCount() const override { return static_cast<int>(m_lineEdit->text().size()); }
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint &point) const override
    {
        return m_lineEdit->cursorPositionAt(m_lineEdit->mapFromGlobal(point));
    }
    void scrollToSubstring(int, int end) override { m_lineEdit->setCursorPosition(end); }
    QString attributes(int, int *start, int *end) const override
    {
        *start = 0;
        *end = characterCount();
        return {};
    }

    void deleteText(int start, int end) override { replace(start, end, QString()); }
    void insertText(int offset, const QString &text) override { replace(offset, offset, text); }
    void replaceText(int start, int end, const QString &text) override
    {
        if (start <= 0 && end >= characterCount()) {
            enter(m_input, m_lineEdit, text); // a value, not some letters of one
        } else {
            replace(start, end, text);
        }
    }

private:
    void replace(int start, int end, const QString &text)
    {
        if (isChangeable(*m_input, *m_lineEdit)) {
            m_lineEdit->setSelection(start, end - start);
            m_lineEdit->insert(text);
        }
    }

    QWidget *m_input;
    QLineEdit *m_lineEdit;
};

QRect LineText::characterRect(int offset) const
{
    QStyleOptionFrame option;
    option.initFrom(m_lineEdit);
    const QRect contents =
        m_lineEdit->style()->subElementRect(QStyle::SE_LineEditContents, &option, m_lineEdit);
    const QFontMetrics metrics = m_lineEdit->fontMetrics();
    const int left = contents.left() + metrics.horizontalAdvance(m_lineEdit->text().left(offset));
    const int width = metrics.horizontalAdvance(m_lineEdit->text().mid(offset, 1));
    return {m_lineEdit->mapToGlobal(QPoint(left, contents.top())), QSize(width, contents.height())};
}

/*! \brief The entry of a list: it is read as a text, and chosen by setting that. */
class EntryText : public QAccessibleTextInterface, public QAccessibleEditableTextInterface
{
public:
    explicit EntryText(QComboBox *list)
        : m_list(list)
    {
    }
    virtual ~EntryText() = default;

    void choose(const QString &text)
    {
        const int byText = m_list->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
        const int index = byText >= 0 ? byText : m_list->findData(text);
        if (index >= 0 && m_list->isEnabled()) {
            m_list->setCurrentIndex(index);
            emit m_list->activated(index);
        }
    }

    void selection(int, int *start, int *end) const override { *start = *end = 0; }
    int selectionCount() const override { return 0; }
    void addSelection(int, int) override { }
    void removeSelection(int) override { }
    void setSelection(int, int, int) override { }
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override { }
    QString text(int start, int end) const override { return m_list->currentText().mid(start, end - start); }
    int characterCount() const override { return static_cast<int>(m_list->currentText().size()); }
    QRect characterRect(int) const override { return {m_list->mapToGlobal(QPoint(0, 0)), m_list->size()}; }
    int offsetAtPoint(const QPoint &) const override { return 0; }
    void scrollToSubstring(int, int) override { }
    QString attributes(int, int *start, int *end) const override
    {
        *start = 0;
        *end = characterCount();
        return {};
    }

    void deleteText(int, int) override { }
    void insertText(int, const QString &) override { }
    void replaceText(int, int, const QString &text) override { choose(text); }

private:
    QComboBox *m_list;
};

/*! \brief An editor in the cell of its value, or a part of one. */
class Editor : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    QAccessibleInterface *parent() const override
    {
        QAccessibleInterface *const cell = AccessibleTree::cellAround(widget());
        return cell ? cell : QAccessibleWidget::parent();
    }
    QString text(QAccessible::Text kind) const override
    {
        const QString text = QAccessibleWidget::text(kind);
        const QWidget *const editor = widget()->parentWidget();
        const bool isPart = editor && editor->focusProxy() == widget();
        return text.isEmpty() && isPart && kind == QAccessible::Description
            ? QAccessible::queryAccessibleInterface(widget()->parentWidget())->text(kind)
            : text;
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = !widget()->isEnabled(); // it shows what cannot be changed, or not now
        return state;
    }
};

class TextEditor final : public Editor, public LineText
{
public:
    explicit TextEditor(QLineEdit *lineEdit)
        : Editor(lineEdit, QAccessible::EditableText)
        , LineText(lineEdit, lineEdit)
        , m_lineEdit(lineEdit)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? m_lineEdit->text() : Editor::text(kind);
    }
    using LineText::text;
    void setText(QAccessible::Text kind, const QString &text) override
    {
        if (kind == QAccessible::Value) {
            enter(m_lineEdit, m_lineEdit, text);
        } else {
            Editor::setText(kind, text);
        }
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = Editor::state();
        state.editable = isChangeable(*m_lineEdit, *m_lineEdit);
        state.selectableText = true;
        return state;
    }
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        switch (type) {
        case QAccessible::TextInterface:
            return static_cast<QAccessibleTextInterface *>(this);
        case QAccessible::EditableTextInterface:
            return static_cast<QAccessibleEditableTextInterface *>(this);
        default:
            return Editor::interface_cast(type);
        }
    }

private:
    QLineEdit *m_lineEdit;
};

/*! \brief A spin box. Its number is entered, which Qt's own leaves out. */
template <typename SpinBox>
class NumberEditor final : public Editor, public LineText, public QAccessibleValueInterface
{
public:
    explicit NumberEditor(SpinBox *spinBox)
        : Editor(spinBox, QAccessible::SpinBox)
        , LineText(spinBox, spinBox->lineEdit())
        , m_spinBox(spinBox)
    {
    }

    int childCount() const override { return 0; } // the line edit is this
    QAccessibleInterface *child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? m_spinBox->text() : Editor::text(kind);
    }
    using LineText::text;
    void setText(QAccessible::Text kind, const QString &text) override
    {
        if (kind == QAccessible::Value) {
            enter(m_spinBox, m_spinBox->lineEdit(), text);
        } else {
            Editor::setText(kind, text);
        }
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = Editor::state();
        state.editable = isChangeable(*m_spinBox, *m_spinBox->lineEdit());
        return state;
    }
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        switch (type) {
        case QAccessible::TextInterface:
            return static_cast<QAccessibleTextInterface *>(this);
        case QAccessible::EditableTextInterface:
            return static_cast<QAccessibleEditableTextInterface *>(this);
        case QAccessible::ValueInterface:
            return static_cast<QAccessibleValueInterface *>(this);
        default:
            return Editor::interface_cast(type);
        }
    }

    QVariant currentValue() const override { return m_spinBox->value(); }
    void setCurrentValue(const QVariant &value) override
    {
        QLocale locale = m_spinBox->locale();
        locale.setNumberOptions(QLocale::OmitGroupSeparator);
        const bool isWhole = std::is_integral_v<decltype(m_spinBox->value())>;
        enter(m_spinBox, m_spinBox->lineEdit(),
              isWhole ? locale.toString(value.toLongLong())
                      : locale.toString(value.toDouble(), 'g', QLocale::FloatingPointShortest));
    }
    QVariant maximumValue() const override { return m_spinBox->maximum(); }
    QVariant minimumValue() const override { return m_spinBox->minimum(); }
    QVariant minimumStepSize() const override { return m_spinBox->singleStep(); }

private:
    SpinBox *m_spinBox;
};

/*! \brief A list, named by its feature; the entry is its value. */
class ListEditor final : public Editor, public EntryText
{
public:
    explicit ListEditor(QComboBox *list)
        : Editor(list, QAccessible::ComboBox)
        , EntryText(list)
        , m_list(list)
    {
    }

    // The list of entries is made when it opens.
    int childCount() const override { return isOpen() ? 1 : 0; }
    QAccessibleInterface *child(int number) const override
    {
        return number == 0 && isOpen() ? QAccessible::queryAccessibleInterface(m_list->view()) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return isOpen() && child && child->object() == m_list->view() ? 0 : -1;
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? m_list->currentText() : Editor::text(kind);
    }
    using EntryText::text;
    void setText(QAccessible::Text kind, const QString &text) override
    {
        if (kind == QAccessible::Value) {
            choose(text);
        } else {
            Editor::setText(kind, text);
        }
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = Editor::state();
        state.hasPopup = true;
        state.expandable = true;
        state.expanded = isOpen();
        state.collapsed = !state.expanded;
        return state;
    }
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        switch (type) {
        case QAccessible::TextInterface:
            return static_cast<QAccessibleTextInterface *>(this);
        case QAccessible::EditableTextInterface:
            return static_cast<QAccessibleEditableTextInterface *>(this);
        default:
            return Editor::interface_cast(type);
        }
    }
    QStringList actionNames() const override
    {
        return m_list->isEnabled() ? QStringList{showMenuAction(), pressAction(), setFocusAction()}
                                   : QStringList();
    }
    void doAction(const QString &name) override
    {
        if (name == setFocusAction()) {
            Editor::doAction(name);
        } else if (isOpen()) {
            m_list->hidePopup();
        } else if (m_list->isEnabled()) {
            m_list->showPopup();
        }
    }

private:
    bool isOpen() const
    {
        const QWidget *const popup = QApplication::activePopupWidget();
        return popup && popup->parentWidget() == m_list;
    }

    QComboBox *m_list;
};

/*! \brief A check box, or the button of a command: that is checkable to show that it runs, and no check box.
 */
class ButtonEditor final : public Editor
{
public:
    ButtonEditor(QAbstractButton *button, QAccessible::Role role)
        : Editor(button, role)
        , m_button(button)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        const bool isCommandText = kind == QAccessible::Value && role() == QAccessible::Button;
        return isCommandText ? m_button->text() : Editor::text(kind);
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = Editor::state();
        if (role() == QAccessible::CheckBox) {
            state.checkable = true;
            state.checked = m_button->isChecked();
        } else {
            state.readOnly = false;
            state.pressed = m_button->isDown();
            state.busy = m_button->isChecked();
        }
        return state;
    }
    QStringList actionNames() const override
    {
        const QString click = role() == QAccessible::CheckBox ? toggleAction() : pressAction();
        QStringList names = Editor::actionNames(); // taking the focus, where that is possible
        names.removeAll(click);
        return m_button->isEnabled() ? QStringList{click} + names : QStringList();
    }
    void doAction(const QString &name) override
    {
        if (!actionNames().contains(name)) {
            return;
        }
        if (name == setFocusAction()) {
            Editor::doAction(name);
        } else {
            m_button->click();
        }
    }

private:
    QAbstractButton *m_button;
};

// The default editors of a tree, for strings, have no class of their own.
bool isEditorOfTree(const QObject &object)
{
    const QObject *const viewport = object.parent();
    return viewport && qobject_cast<const FeatureTreeView *>(viewport->parent());
}

QAccessibleInterface *create(const QString &className, QObject *object)
{
    if (!object || !object->isWidgetType()) {
        return nullptr;
    }
    if (className == QLatin1String("FeatureTreeView")) {
        return new AccessibleTree(static_cast<FeatureTreeView *>(object));
    }
    if (className == QLatin1String("EnumEditor")) {
        return new ListEditor(static_cast<EnumEditor *>(object));
    }
    if (className == QLatin1String("CheckBoxEditor")) {
        return new ButtonEditor(static_cast<CheckBoxEditor *>(object), QAccessible::CheckBox);
    }
    if (className == QLatin1String("ToolButtonEditor")) {
        return new ButtonEditor(static_cast<ToolButtonEditor *>(object), QAccessible::Button);
    }
    if (className == QLatin1String("ZeltoQtDoubleSpinBox")) {
        return new NumberEditor(static_cast<ZeltoQtDoubleSpinBox *>(object));
    }
    if (auto *const spinBox = dynamic_cast<ZeltoQtSpinBox *>(object)) {
        return new NumberEditor(spinBox); // has no meta-object to be named by
    }
    if (className == QLatin1String("IntSliderEditor") || className == QLatin1String("FloatEditor")
        || className == QLatin1String("FloatSliderEditor")) {
        return new Editor(static_cast<QWidget *>(object), QAccessible::Grouping);
    }
    if (auto *const lineEdit = qobject_cast<QLineEdit *>(object);
        lineEdit && (className == QLatin1String("IntEditor") || isEditorOfTree(*lineEdit))) {
        return new TextEditor(lineEdit);
    }
    return nullptr;
}

} // namespace

namespace AccessibleEditors {

void install()
{
    QAccessible::installFactory(create); // which takes each but once, and forgets it with the application
}

} // namespace AccessibleEditors
