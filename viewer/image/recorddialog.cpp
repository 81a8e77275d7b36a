// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "recorddialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include <utility>

namespace {

constexpr int mostFrames = 1'000'000;

} // namespace

RecordDialog::RecordDialog(const QString &folder, QWidget *parent)
    : QDialog(parent)
    , m_count(new QSpinBox(this))
    , m_folder(new QLineEdit(folder, this))
    , m_kind(new QComboBox(this))
{
    setWindowTitle(tr("Record Images"));
    m_count->setRange(1, mostFrames);
    m_count->setValue(10);
    m_folder->setToolTip(tr("The images get a new folder in this one; nothing is overwritten"));
    using Kind = FrameFile::Kind;
    for (const auto &[name, kind] :
         {std::pair(tr("TIFF, raw values"), Kind::Tiff), std::pair(tr("PGM or PPM, raw values"), Kind::Pnm),
          std::pair(tr("PNG, as shown with 8 bits"), Kind::Png),
          std::pair(tr("Bytes as they came"), Kind::Bytes)}) {
        m_kind->addItem(name, int(kind));
    }
    auto *const browse = new QPushButton(tr("&Browse…"), this);
    connect(browse, SIGNAL(clicked()), this, SLOT(browse()));
    auto *const place = new QHBoxLayout;
    place->addWidget(m_folder, 1);
    place->addWidget(browse);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("&Record"));
    connect(buttons, SIGNAL(accepted()), this, SLOT(accept()));
    connect(buttons, SIGNAL(rejected()), this, SLOT(reject()));
    auto *const layout = new QFormLayout(this);
    layout->addRow(tr("&Images:"), m_count);
    layout->addRow(tr("&Folder:"), place);
    layout->addRow(tr("&Kind:"), m_kind);
    layout->addRow(buttons);
    m_folder->setMinimumWidth(40 * fontMetrics().averageCharWidth());
}

RecordDialog::~RecordDialog() = default;

int RecordDialog::count() const
{
    return m_count->value();
}

QString RecordDialog::folder() const
{
    return m_folder->text();
}

FrameFile::Kind RecordDialog::kind() const
{
    return static_cast<FrameFile::Kind>(m_kind->currentData().toInt());
}

void RecordDialog::browse()
{
    const QString folder = QFileDialog::getExistingDirectory(this, tr("Folder for Images"), m_folder->text());
    if (!folder.isEmpty()) {
        m_folder->setText(folder);
    }
}
