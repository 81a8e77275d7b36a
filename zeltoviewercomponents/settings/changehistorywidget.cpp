// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "changehistorywidget.h"

#include "changehistory.h"
#include "searchedlistview_p.h"

#include <platform/core/livetexts.h>
#include <platform/core/savefile.h>
#include <zeltoviewercomponents/errorhandling/messagefunctions.h>
#include <zeltoviewercomponents/standardicon.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QSortFilterProxyModel>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

// One line, whatever a text feature holds.
QString escaped(QString text)
{
    return text.replace(QLatin1Char('\\'), QLatin1String("\\\\"))
        .replace(QLatin1Char('\n'), QLatin1String("\\n"))
        .replace(QLatin1Char('\r'), QLatin1String("\\r"))
        .replace(QLatin1Char('\t'), QLatin1String("\\t"));
}

} // namespace

ChangeHistoryWidget::ChangeHistoryWidget(ChangeHistory *history, QWidget *parent)
    : QWidget(parent)
    , m_texts(new Core::LiveTexts(this))
    , m_history(history)
    , m_filter(new QSortFilterProxyModel(this))
    , m_go(addListAction(QT_TR_NOOP("&Go to Feature"), SLOT(goToFeature())))
    , m_putBackBefore(addListAction(QT_TR_NOOP("Put &Back the Value Before"), SLOT(putBackBefore())))
    , m_putBackAfter(addListAction(QT_TR_NOOP("Set the Value &After Again"), SLOT(putBackAfter())))
    , m_copy(addListAction(QT_TR_NOOP("&Copy"), SLOT(copy())))
    , m_save(addListAction(QT_TR_NOOP("&Save as Text…"), SLOT(save())))
{
    setObjectName(QStringLiteral("changes"));
    m_texts->add(this, &QWidget::setWindowTitle, [] { return tr("Changes"); });
    m_texts->add(this, &QWidget::setToolTip,
                 [] { return tr("What was changed since the camera was opened"); });
    m_filter->setSourceModel(history->changes());
    m_view = new SearchedListView(m_filter, this);
    m_texts->add(m_view, &QWidget::setAccessibleName, [] { return tr("Changes"); });
    m_copy->setShortcut(QKeySequence::Copy);
    m_save->setIcon(standardIcon(QStyle::SP_DialogSaveButton));
    layOut();
    connect(m_view, SIGNAL(chosen()), this, SLOT(goToFeature()));
    connect(m_view, SIGNAL(customContextMenuRequested(QPoint)), this, SLOT(showMenu(QPoint)));
    connect(m_view->selectionModel(), SIGNAL(currentChanged(QModelIndex, QModelIndex)), this,
            SLOT(updateActions()));
    connect(m_filter, SIGNAL(modelReset()), this, SLOT(updateActions()));
    updateActions();
    m_texts->add([this] {
        QAbstractItemModel *const changes = m_history->changes();
        emit changes->headerDataChanged(Qt::Horizontal, 0, changes->columnCount() - 1);
    });
}

ChangeHistoryWidget::~ChangeHistoryWidget() = default;

QAction *ChangeHistoryWidget::addListAction(const char *text, const char *slot)
{
    auto *const action = new QAction(this);
    m_texts->add(action, &QAction::setText, [text] { return tr(text); });
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(action, SIGNAL(triggered()), this, slot);
    return action;
}

void ChangeHistoryWidget::layOut()
{
    QLineEdit *const search = m_view->searchBox();
    m_texts->add(search, &QLineEdit::setPlaceholderText, [] { return tr("Search changes"); });
    m_texts->add(search, &QWidget::setAccessibleName, [] { return tr("Search changes"); });
    auto *const saveButton = new QToolButton(this);
    saveButton->setDefaultAction(m_save);
    saveButton->setAutoRaise(true);

    m_view->addAction(m_copy);
    const int width = fontMetrics().averageCharWidth();
    m_view->header()->resizeSection(ChangeHistory::TimeColumn,
                                    fontMetrics().horizontalAdvance(QStringLiteral("00:00:00")) + 4 * width);
    m_view->header()->resizeSection(ChangeHistory::NameColumn, 26 * width);
    m_view->header()->resizeSection(ChangeHistory::BeforeColumn, 14 * width);
    m_view->header()->resizeSection(ChangeHistory::AfterColumn, 14 * width);

    auto *const top = new QHBoxLayout;
    top->addWidget(search, 1);
    top->addWidget(saveButton);
    auto *const layout = new QVBoxLayout(this);
    const int margin = style()->pixelMetric(QStyle::PM_LayoutLeftMargin) / 2;
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addLayout(top);
    layout->addWidget(m_view, 1);
}

QModelIndex ChangeHistoryWidget::current() const
{
    return m_filter->mapToSource(m_view->currentIndex());
}

void ChangeHistoryWidget::setPuttingBack(bool isPossible)
{
    m_canPutBack = isPossible;
    updateActions();
}

void ChangeHistoryWidget::updateActions()
{
    const Change change = m_history ? m_history->change(current()) : Change();
    const bool isValue = m_canPutBack && change.kind == Change::Kind::Value;
    m_go->setEnabled(current().isValid() && change.kind != Change::Kind::File);
    m_putBackBefore->setEnabled(isValue && !change.before.isNull());
    m_putBackAfter->setEnabled(isValue && !change.after.isNull());
    m_copy->setEnabled(current().isValid());
}

void ChangeHistoryWidget::goToFeature()
{
    const QString name = current().data(ChangeHistory::NameRole).toString();
    if (!name.isEmpty()) {
        emit featureRequested(name);
    }
}

void ChangeHistoryWidget::putBack(int column)
{
    if (m_history) {
        m_history->putBack(current(), static_cast<ChangeHistory::Column>(column));
    }
}

void ChangeHistoryWidget::putBackBefore()
{
    putBack(ChangeHistory::BeforeColumn);
}

void ChangeHistoryWidget::putBackAfter()
{
    putBack(ChangeHistory::AfterColumn);
}

QString ChangeHistoryWidget::lineOf(const QModelIndex &index) const
{
    const Change change = m_history->change(m_filter->mapToSource(index));
    const QString result = index.siblingAtColumn(ChangeHistory::ResultColumn).data().toString();
    const QString path = change.kind == Change::Kind::File
        ? change.name
        : change.name.section(QLatin1Char('/'), 0, -2) + QLatin1Char('/') + change.title();
    return QStringList{QDateTime::fromMSecsSinceEpoch(change.time).toString(Qt::ISODateWithMs), escaped(path),
                       escaped(change.shown(change.before)), escaped(change.shown(change.after)),
                       escaped(result)}
        .join(QLatin1Char('\t'));
}

QString ChangeHistoryWidget::text() const
{
    QString text;
    for (int row = 0; m_history && row < m_filter->rowCount(); ++row) {
        text += lineOf(m_filter->index(row, 0)) + QLatin1Char('\n');
    }
    return text;
}

void ChangeHistoryWidget::copy()
{
    QModelIndexList rows = m_view->selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    QStringList lines;
    for (const QModelIndex &row : std::as_const(rows)) {
        lines.append(lineOf(row));
    }
    QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

void ChangeHistoryWidget::save()
{
    const QString fileName = QFileDialog::getSaveFileName(this, tr("Save Changes as Text"), QString(),
                                                          tr("Text files (*.txt);;All files (*)"));
    if (fileName.isEmpty()) {
        return;
    }
    const QString failure = Core::saveFile(fileName, text().toUtf8());
    if (!failure.isEmpty()) {
        showErrorMessage(tr("Cannot write %1: %2").arg(fileName, failure), this);
    }
}

void ChangeHistoryWidget::showMenu(const QPoint &pos)
{
    updateActions();
    QMenu menu(this);
    menu.addActions({m_go, m_putBackBefore, m_putBackAfter});
    menu.addSeparator();
    menu.addActions({m_copy, m_save});
    menu.exec(m_view->viewport()->mapToGlobal(pos));
}
