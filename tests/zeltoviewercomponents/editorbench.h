// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/featuretree/abstractitemeditor.h>
#include <zeltoviewercomponents/featuretree/featuretreedelegate.h>
#include <zeltoviewercomponents/featuretree/featuretreeinodeitem.h>
#include <zeltoviewercomponents/featuretree/featuretreemodel.h>

#include <support/memorycollection.h>

#include <QApplication>
#include <QLineEdit>
#include <QStringList>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>

#include <memory>

/*! \brief A window around editors that are filled and committed by the tree's delegate and its model. */
class EditorBench : public QWidget
{
    Q_OBJECT

public:
    EditorBench()
        : m_delegate(nullptr, &m_model, nullptr)
        , m_layout(new QVBoxLayout(this))
    {
        connect(&m_delegate, SIGNAL(commitData(QWidget *)), this, SLOT(commit(QWidget *)));
        connect(&m_model, SIGNAL(writeFailed(QSharedPointer<ParameterCollection::IParameter>, QString)), this,
                SLOT(onWriteFailed(QSharedPointer<ParameterCollection::IParameter>, QString)));
    }

    template <typename Editor, typename Parameter>
    Editor *add(Editor *editor, const QSharedPointer<Parameter> &parameter, const char *commitSignal)
    {
        m_layout->addWidget(editor);
        m_rows.append({editor, editor,
                       std::make_shared<FeatureTreeINodeItem>(nullptr, parameter, &m_model,
                                                              parameter->fullName(), nullptr, true)});
        connect(editor, commitSignal, &m_delegate, SLOT(emitCommitData()));
        connect(m_rows.last().item.get(), SIGNAL(nodeUpdated(int, FeatureTreeINodeItem *)), this,
                SLOT(onNodeUpdated(int, FeatureTreeINodeItem *)));
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
    /*! Shows what the parameters have now, whether they have published it or not. */
    void refresh()
    {
        for (const Row &row : std::as_const(m_rows)) {
            row.editor->setEditorData({row.item->node(), row.item->node()->parameterData()});
        }
    }

private slots:
    void onNodeUpdated(int, FeatureTreeINodeItem *item)
    {
        for (const Row &row : std::as_const(m_rows)) {
            if (row.item.get() == item) {
                m_delegate.setEditorData(row.widget, m_model.cellOf(item));
            }
        }
    }

    void commit(QWidget *editor)
    {
        for (const Row &row : std::as_const(m_rows)) {
            if (row.widget == editor) {
                m_delegate.setModelData(editor, &m_model, m_model.cellOf(row.item.get()));
            }
        }
    }

    void onWriteFailed(const QSharedPointer<ParameterCollection::IParameter> &, const QString &message)
    {
        refusals.append(message);
    }

private:
    class Model : public FeatureTreeModel
    {
    public:
        QModelIndex cellOf(FeatureTreeINodeItem *item) const { return createIndex(0, 1, item); }
    };
    struct Row
    {
        AbstractItemEditor *editor;
        QWidget *widget;
        std::shared_ptr<FeatureTreeINodeItem> item;
    };

    Model m_model;
    FeatureTreeDelegate m_delegate;
    QVBoxLayout *m_layout;
    QList<Row> m_rows;
};
