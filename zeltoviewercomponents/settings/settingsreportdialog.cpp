// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "settingsreportdialog.h"

#include <QCheckBox>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

using Result = SettingsReport::Result;

namespace {

constexpr int lineColumn = 5; // shown first

bool hasLine(const SettingsReport::Entry &entry)
{
    return entry.setting.line > 0; // of a file
}

} // namespace

SettingsReportDialog::SettingsReportDialog(const SettingsReport &report, QWidget *parent)
    : QDialog(parent)
    , m_report(report)
    , m_all(new QCheckBox(tr("Show &all features"), this))
    , m_list(new QTreeWidget(this))
{
    setWindowTitle(tr("Settings Loaded"));
    auto *const summary = new QLabel(report.summary(), this);
    summary->setWordWrap(true);
    m_list->setHeaderLabels(
        {tr("Feature"), tr("Before"), tr("Asked for"), tr("Now"), tr("Result"), tr("Line")});
    m_list->header()->moveSection(lineColumn, 0);
    m_list->setColumnHidden(lineColumn,
                            std::none_of(report.entries.cbegin(), report.entries.cend(), hasLine));
    m_list->setRootIsDecorated(false);
    m_list->setAlternatingRowColors(true);
    m_list->setUniformRowHeights(true);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    auto *const copyButton = buttons->addButton(tr("&Copy"), QDialogButtonBox::ActionRole);
    auto *const backButton =
        buttons->addButton(tr("&Put Back What Was Before"), QDialogButtonBox::ActionRole);
    backButton->setEnabled(report.count(Result::Set) + report.count(Result::Different) > 0 && !report.isLost);
    buttons->button(QDialogButtonBox::Close)->setDefault(true);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(summary);
    layout->addWidget(m_list);
    layout->addWidget(m_all);
    layout->addWidget(buttons);
    connect(m_all, SIGNAL(toggled(bool)), this, SLOT(fill()));
    connect(buttons, SIGNAL(rejected()), this, SLOT(reject()));
    connect(copyButton, SIGNAL(clicked()), this, SLOT(copy()));
    connect(backButton, SIGNAL(clicked()), this, SLOT(putBack()));
    m_all->setChecked(report.isSuccess());
    fill();
    constexpr int columns = 130;
    constexpr int lines = 24;
    resize(fontMetrics().averageCharWidth() * columns, fontMetrics().height() * lines);
    m_list->header()->setStretchLastSection(true);
}

SettingsReportDialog::~SettingsReportDialog() = default;

void SettingsReportDialog::fill()
{
    m_list->clear();
    for (const SettingsReport::Entry &entry : std::as_const(m_report.entries)) {
        const bool isFine = entry.result == Result::Set || entry.result == Result::Unchanged;
        if (isFine && !m_all->isChecked()) {
            continue;
        }
        auto *const row = new QTreeWidgetItem(m_list,
                                              {entry.setting.title(), entry.before, entry.setting.value,
                                               entry.after, SettingsReport::resultText(entry)});
        if (hasLine(entry)) {
            row->setText(lineColumn, QString::number(entry.setting.line));
        }
        for (int column = 0; column < m_list->columnCount(); ++column) {
            row->setToolTip(column, row->text(column)); // narrow columns cut texts off
        }
    }
    const int widest = fontMetrics().averageCharWidth() * 36;
    for (int column = 0; column < m_list->columnCount(); ++column) {
        m_list->resizeColumnToContents(column);
        m_list->setColumnWidth(column, std::min(m_list->columnWidth(column), widest));
    }
}

void SettingsReportDialog::copy()
{
    const QStringList lines = QStringList{m_report.summary()} + m_report.problems();
    QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

void SettingsReportDialog::putBack()
{
    emit putBackRequested();
    accept();
}
