// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/featuretree/abstractitemeditor.h>

#include <support/memorycollection.h>

#include <QApplication>
#include <QLineEdit>
#include <QStringList>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>

/*! \brief A window around editors that commits as the feature tree does: what an editor hands out is written,
 * a refusal is noted and the parameter's snapshot shown again. */
class EditorBench : public QWidget
{
    Q_OBJECT

public:
    EditorBench()
        : m_layout(new QVBoxLayout(this))
    {
    }

    template <typename Editor, typename Parameter>
    Editor *add(Editor *editor, const QSharedPointer<Parameter> &parameter, const char *commitSignal)
    {
        m_layout->addWidget(editor);
        m_rows.append({editor, editor, parameter});
        connect(editor, commitSignal, this, SLOT(commit()));
        connect(
            parameter.data(),
            SIGNAL(parameterDataChangedDecoupled(QSharedPointer<const ParameterCollection::ParameterData>)),
            this, SLOT(refresh()));
        refresh();
        return editor;
    }

    /*! Shows the bench and waits until keys reach its editors. */
    void present()
    {
        show();
        QApplication::setActiveWindow(this);
        QVERIFY(QTest::qWaitForWindowActive(this));
    }

    static QLineEdit *lineOf(QWidget *editor)
    {
        auto *const line = qobject_cast<QLineEdit *>(editor);
        return line ? line : editor->findChild<QLineEdit *>();
    }

    /*! Types \a text in the place of what \a editor shows. */
    static void type(QWidget *editor, const QString &text)
    {
        editor->setFocus();
        lineOf(editor)->selectAll();
        for (const QChar letter : text) {
            QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_unknown, letter,
                                Qt::NoModifier);
        }
    }

    static void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

    /*! Types \a text and commits it. */
    static void enter(QWidget *editor, const QString &text)
    {
        type(editor, text);
        press(Qt::Key_Return);
    }

    QStringList refusals;

public slots:
    void refresh()
    {
        for (const Row &row : std::as_const(m_rows)) {
            row.editor->setEditorData({row.parameter, row.parameter->parameterData()});
        }
    }

    void commit()
    {
        for (const Row &row : std::as_const(m_rows)) {
            if (row.widget == sender()) {
                write(row);
            }
        }
    }

private:
    struct Row
    {
        AbstractItemEditor *editor;
        QWidget *widget;
        QSharedPointer<ParameterCollection::IParameter> parameter;
    };

    void write(const Row &row)
    {
        const auto *const text = qobject_cast<QLineEdit *>(row.widget);
        if (text && !text->isModified()) {
            return;
        }
        const QVariant value = row.editor->editorData();
        if (!value.isValid()) {
            return;
        }
        try {
            if (const auto command =
                    qSharedPointerObjectCast<ParameterCollection::ICommandParameter>(row.parameter)) {
                command->execute(true);
            } else {
                row.parameter->setValueFromString(value.toString());
            }
        } catch (const std::exception &exception) {
            refusals.append(QString::fromUtf8(exception.what()));
            row.editor->setEditorData({row.parameter, row.parameter->parameterData()});
        }
    }

    QVBoxLayout *m_layout;
    QList<Row> m_rows;
};
