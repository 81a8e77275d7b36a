// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "editordatakeeper_p.h"

#include "editorkeys_p.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QTimerEvent>
#include <QWidget>

#include <utility>

namespace {

// Longer than a snapshot takes after a write, so that a successful change does not flicker.
constexpr int answerMilliseconds = 500;

} // namespace

EditorDataKeeper::EditorDataKeeper(AbstractItemEditor *editor, QWidget *input, QLineEdit *lineEdit)
    : QObject(input)
    , m_editor(editor)
    , m_lineEdit(lineEdit)
{
    input->installEventFilter(this);
}

void EditorDataKeeper::keep(const AbstractItemEditor::EditorData &data)
{
    m_timer.stop();
    m_data = data;
}

void EditorDataKeeper::setCommitted(bool isCommitted)
{
    m_isCommitted = isCommitted;
}

bool EditorDataKeeper::takeCommitted()
{
    if (m_isCommitted) {
        showAgainAfterCommit();
    }
    return std::exchange(m_isCommitted, false);
}

bool EditorDataKeeper::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
        // Filters that come later, such as the delegate's, would see Escape first. Once, since Qt tidies up
        // the filters with it, and would leave one out of this event where another was removed.
        if (!std::exchange(m_isInFront, true)) {
            watched->installEventFilter(this);
        }
        break;
    case QEvent::FocusOut:
        if (!EditorKeys::isFocusLent(*event)) {
            showAgainAfterCommit();
        }
        break;
    case QEvent::KeyPress:
        if (m_lineEdit && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
            // Setting the text forgets the typing, which would otherwise be kept, and its undo steps.
            m_lineEdit->setText(m_lineEdit->text());
            showAgain();
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void EditorDataKeeper::showAgainAfterCommit()
{
    m_timer.start(answerMilliseconds, this);
}

void EditorDataKeeper::showAgainSoon()
{
    m_timer.start(0, this);
}

void EditorDataKeeper::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timer.timerId()) {
        QObject::timerEvent(event);
        return;
    }
    m_timer.stop();
    showAgain();
}

void EditorDataKeeper::showAgain()
{
    if (m_data.ptrParameterData) {
        m_editor->setEditorData(m_data);
    }
}
