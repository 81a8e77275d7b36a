// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "inputhint_p.h"

#include <QLabel>
#include <QLineEdit>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QToolTip>

namespace {

constexpr int tellingMilliseconds = 4000;

// Between the colours of the text field and red: letters stay as legible as they were.
QColor tinted(const QColor &color)
{
    constexpr int share = 25; // of a hundred
    const QColor red(Qt::red);
    const auto mixed = [](int a, int b) { return (a * (100 - share) + b * share) / 100; };
    return QColor(mixed(color.red(), red.red()), mixed(color.green(), red.green()),
                  mixed(color.blue(), red.blue()));
}

// Returns a place in the editor's row, behind the text, since the user may go on in the row below. Where the
// window ends too early, it is below the editor, or above.
QPoint placeIn(const QWidget &window, const QWidget &editor, const QLineEdit &lineEdit, const QSize &size)
{
    const int textWidth = lineEdit.fontMetrics().horizontalAdvance(lineEdit.displayText());
    const bool isRoomInside = editor.width() >= size.width() + textWidth + 2 * lineEdit.height();
    const QPoint origin = editor.mapTo(&window, QPoint(0, 0));
    const QRect row(origin, editor.size());
    const int behind = isRoomInside ? row.right() - size.width() : row.right() + 2;
    if (editor.layoutDirection() == Qt::LeftToRight && behind + size.width() <= window.width()) {
        return {behind, row.center().y() - size.height() / 2};
    }
    const bool isRoomBelow = row.bottom() + size.height() < window.height();
    return {qBound(0, row.left(), qMax(0, window.width() - size.width())),
            isRoomBelow ? row.bottom() + 1 : row.top() - size.height()};
}

} // namespace

InputHint::InputHint(QWidget *editor, QLineEdit *lineEdit)
    : QObject(editor)
    , m_editor(editor)
    , m_lineEdit(lineEdit)
    , m_toolTip(lineEdit->toolTip())
{
    m_timer.setSingleShot(true);
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(endTelling()));
    connect(lineEdit, SIGNAL(textEdited(QString)), this, SLOT(endTelling()));
}

InputHint::~InputHint()
{
    delete m_label;
}

void InputHint::setProblem(const QString &problem)
{
    if (problem == m_problem) {
        return;
    }
    const bool wasMarked = !m_problem.isEmpty();
    if (wasMarked && QToolTip::text() == m_problem) {
        QToolTip::hideText(); // keys alone leave it there
    }
    m_problem = problem;
    if (!problem.isEmpty()) {
        endTelling(); // what became of the entry before is out of date
    }
    m_lineEdit->setToolTip(problem.isEmpty() ? m_toolTip : problem);
    if (wasMarked == problem.isEmpty()) {
        mark(!wasMarked); // once: the editor may be the line edit, and would be tinted again and again
    }
}

QString InputHint::problem() const
{
    return m_problem;
}

void InputHint::setToolTip(const QString &toolTip)
{
    m_toolTip = toolTip;
    if (m_problem.isEmpty()) {
        m_lineEdit->setToolTip(toolTip);
    }
}

void InputHint::tell(const QString &text)
{
    QWidget *const window = m_editor->window();
    if (!m_editor->isVisible() || window == m_editor) {
        return;
    }
    if (!m_label) {
        m_description = input()->accessibleDescription();
        m_label = new QLabel(window);
        m_label->setObjectName(QStringLiteral("inputHint"));
        m_label->setAttribute(Qt::WA_TransparentForMouseEvents);
        m_label->setAutoFillBackground(true);
        m_label->setFrameShape(QFrame::Box);
        m_label->setMargin(2);
    }
    // A tool tip would go with the focus.
    m_label->setPalette(QToolTip::palette());
    m_label->setBackgroundRole(QPalette::ToolTipBase);
    m_label->setForegroundRole(QPalette::ToolTipText);
    m_label->setText(text);
    input()->setAccessibleDescription(text);
    m_label->adjustSize();
    m_label->move(placeIn(*window, *m_editor, *m_lineEdit, m_label->size()));
    m_label->raise();
    m_label->show();
    m_timer.start(tellingMilliseconds);
}

void InputHint::endTelling()
{
    if (m_label) {
        input()->setAccessibleDescription(m_description);
    }
    delete m_label;
}

// Returns what has the focus while the text is edited; a change of its description is read out.
QWidget *InputHint::input() const
{
    return m_lineEdit->focusProxy() ? m_lineEdit->focusProxy() : m_lineEdit;
}

void InputHint::mark(bool isMarked)
{
    QPalette palette;
    if (isMarked) {
        const QPalette inherited = m_editor->palette();
        for (const auto group : {QPalette::Active, QPalette::Inactive}) {
            palette.setColor(group, QPalette::Base, tinted(inherited.color(group, QPalette::Base)));
        }
    }
    m_lineEdit->setPalette(palette); // an empty one takes back what the parents have
}
