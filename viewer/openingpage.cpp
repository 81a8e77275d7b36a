// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "openingpage.h"

#include <cameras/cameraopening.h>
#include <platform/core/livetexts.h>

#include <QKeySequence>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

using Step = Cameras::OpeningProgress::Step;

namespace {

QString stepWords(const Cameras::OpeningProgress &progress)
{
    switch (progress.step) {
    case Step::Waiting:
        return OpeningPage::tr("Waiting until the search for another camera, or its opening, has ended…");
    case Step::Connecting:
        return OpeningPage::tr("Connecting…");
    case Step::Describing:
        return OpeningPage::tr("Reading the description…");
    default:
        return OpeningPage::tr("Reading the features: %1 of %2").arg(progress.done).arg(progress.total);
    }
}

} // namespace

OpeningPage::OpeningPage(QWidget *parent)
    : QWidget(parent)
    , m_name(new QLabel(this))
    , m_step(new QLabel(this))
    , m_bar(new QProgressBar(this))
    , m_cancel(new QPushButton(this))
{
    auto *const texts = new Core::LiveTexts(this);
    texts->add(m_cancel, &QPushButton::setText, [] { return tr("Cancel"); });
    texts->add(m_bar, &QWidget::setAccessibleName, [] { return tr("Progress"); });
    for (QLabel *const label : {m_name, m_step}) {
        label->setAlignment(Qt::AlignCenter);
        label->setWordWrap(true);
        label->setTextFormat(Qt::PlainText);
    }
    m_bar->setTextVisible(false);
    m_bar->setFixedWidth(fontMetrics().averageCharWidth() * 30);
    auto *const layout = new QVBoxLayout(this);
    layout->addStretch();
    layout->addWidget(m_name);
    layout->addWidget(m_bar, 0, Qt::AlignCenter);
    layout->addWidget(m_step);
    layout->addWidget(m_cancel, 0, Qt::AlignCenter);
    layout->addStretch();
    setFocusProxy(m_cancel);
    connect(m_cancel, SIGNAL(clicked()), this, SIGNAL(cancelled()));
    auto *const escape = new QShortcut(QKeySequence::Cancel, this);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    connect(escape, SIGNAL(activated()), this, SIGNAL(cancelled()));
}

OpeningPage::~OpeningPage() = default;

void OpeningPage::begin(const QString &name)
{
    m_name->setText(tr("Opening %1").arg(name));
    setProgress({});
}

void OpeningPage::setProgress(const Cameras::OpeningProgress &progress)
{
    m_step->setText(stepWords(progress));
    m_bar->setMaximum(progress.total); // without an end it only says that something is going on
    m_bar->setValue(progress.done);
    m_bar->setAccessibleDescription(m_step->text());
}
