// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "searchedit.h"

#include "parentfont_p.h"
#include "parentpalette_p.h"

#include <zeltoviewercomponents/resources_p.h>

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QFontMetrics>
#include <QIcon>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QTextOption>

#include <algorithm>

namespace {

QFont placeholderFont()
{
    return QApplication::font("QLineEdit");
}

} // namespace

struct SearchEdit::Private
{
    QAction *searchAction = nullptr;
    QAction *clearAction = nullptr;
    QString placeholder;
    bool placeholderEnabled = true;
    std::unique_ptr<ParentFont> parentFont;
};

SearchEdit::SearchEdit(QWidget *parent)
    : QLineEdit(parent)
    , d(std::make_unique<Private>())
{
    d->parentFont = std::make_unique<ParentFont>(this);
    connect(this, SIGNAL(textChanged(const QString &)), this, SLOT(onTextChanged(const QString &)));

    d->searchAction = addAction(QIcon(QStringLiteral(":/zeltoviewercomponents/Resources/searchlens_16.png")),
                                QLineEdit::TrailingPosition);
    d->searchAction->setEnabled(false);
    d->searchAction->setVisible(true);

    d->clearAction = addAction(QIcon(QStringLiteral(":/zeltoviewercomponents/Resources/cross_16.png")),
                               QLineEdit::TrailingPosition);
    connect(d->clearAction, SIGNAL(triggered()), this, SLOT(clear()));
    d->clearAction->setVisible(false);
    showActionTexts();

    new ParentPalette(this, QStringLiteral("QLineEdit { border: 1px solid gray; border-radius: 0px; }"),
                      QStringLiteral(" QLineEdit { background: %1; }"));
    d->parentFont->update();
}

SearchEdit::~SearchEdit() = default;

QString SearchEdit::placeholder() const
{
    return d->placeholder;
}

bool SearchEdit::isPlaceholderEnabled() const
{
    return d->placeholderEnabled;
}

void SearchEdit::setPlaceholder(const QString &text)
{
    d->placeholder = text;
    setAccessibleName(text);
    updateGeometry();
    update();
}

void SearchEdit::setPlaceholderEnabled(bool enabled)
{
    d->placeholderEnabled = enabled;
    update();
}

void SearchEdit::setResult(const QString &text)
{
    // A change of what describes the widget with the focus is read out; that of another one is not.
    if (text != accessibleDescription()) {
        setAccessibleDescription(text);
    }
}

QSize SearchEdit::sizeHint() const
{
    const QSize base = QLineEdit::sizeHint();
    const int frame = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
    const int text = QFontMetrics(placeholderFont()).horizontalAdvance(d->placeholder);
    return {std::max(base.width(), text + base.height() + 4 * frame), base.height()};
}

void SearchEdit::changeEvent(QEvent *event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        d->parentFont->update();
    } else if (event->type() == QEvent::LanguageChange) {
        showActionTexts();
    }
}

void SearchEdit::showActionTexts()
{
    d->searchAction->setText(tr("Search"));
    d->clearAction->setText(tr("Clear"));
}

void SearchEdit::paintEvent(QPaintEvent *event)
{
    QLineEdit::paintEvent(event);
    if (hasFocus()) {
        QPainter painter(this); // the style sheet gives the border one colour for all
        painter.setPen(palette().color(QPalette::Active, QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    if (d->clearAction->isVisible() || !d->placeholderEnabled) {
        return;
    }
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QRect contents = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
    const QFont font = placeholderFont();
    const QFontMetrics metrics(font);
    const int frame = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, this);
    const int margin = textMargins().top();
    QRect line(contents.left() + frame + margin,
               contents.top() + (contents.height() + 1 - metrics.height()) / 2 - margin,
               contents.width() - 2 * frame - margin, metrics.height());
    line.setRight(line.right() - height());

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(contents);
    painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
    painter.setFont(font);
    // A box too narrow for the text would show the top of a second line.
    painter.drawText(QRectF(QStyle::visualRect(layoutDirection(), contents, line)),
                     metrics.elidedText(d->placeholder, Qt::ElideRight, line.width()),
                     QTextOption(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft)));
}

void SearchEdit::onTextChanged(const QString &text)
{
    d->searchAction->setVisible(text.isEmpty());
    d->clearAction->setVisible(!text.isEmpty());
}
