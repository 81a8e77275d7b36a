// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "searchedit.h"

#include "parentfont_p.h"
#include "parentpalette_p.h"

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

SearchEdit::SearchEdit(QWidget *parent)
    : QLineEdit(parent)
    , m_parentFont(std::make_unique<ParentFont>(this))
{
    connect(this, SIGNAL(textChanged(const QString &)), this, SLOT(onTextChanged(const QString &)));

    m_searchAction = addAction(QIcon(QStringLiteral(":/zeltoviewercomponents/Resources/searchlens_16.png")),
                               QLineEdit::TrailingPosition);
    m_searchAction->setEnabled(false);
    m_searchAction->setVisible(true);

    m_clearAction = addAction(QIcon(QStringLiteral(":/zeltoviewercomponents/Resources/cross_16.png")),
                              QLineEdit::TrailingPosition);
    connect(m_clearAction, SIGNAL(triggered()), this, SLOT(clear()));
    m_clearAction->setVisible(false);
    showActionTexts();

    new ParentPalette(this, QStringLiteral("QLineEdit { border: 1px solid gray; border-radius: 0px; }"),
                      QStringLiteral(" QLineEdit { background: %1; }"));
    m_parentFont->update();
}

SearchEdit::~SearchEdit() = default;

void SearchEdit::setPlaceholder(const QString &text)
{
    m_placeholder = text;
    setAccessibleName(text);
    updateGeometry();
    update();
}

void SearchEdit::setPlaceholderEnabled(bool enabled)
{
    m_placeholderEnabled = enabled;
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
    const int text = QFontMetrics(placeholderFont()).horizontalAdvance(m_placeholder);
    return {std::max(base.width(), text + base.height() + 4 * frame), base.height()};
}

void SearchEdit::changeEvent(QEvent *event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        m_parentFont->update();
    } else if (event->type() == QEvent::LanguageChange) {
        showActionTexts();
    }
}

void SearchEdit::showActionTexts()
{
    m_searchAction->setText(tr("Search"));
    m_clearAction->setText(tr("Clear"));
}

void SearchEdit::paintEvent(QPaintEvent *event)
{
    QLineEdit::paintEvent(event);
    if (hasFocus()) {
        QPainter painter(this); // the style sheet gives the border one colour for all
        painter.setPen(palette().color(QPalette::Active, QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    if (m_clearAction->isVisible() || !m_placeholderEnabled) {
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
                     metrics.elidedText(m_placeholder, Qt::ElideRight, line.width()),
                     QTextOption(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft)));
}

void SearchEdit::onTextChanged(const QString &text)
{
    m_searchAction->setVisible(text.isEmpty());
    m_clearAction->setVisible(!text.isEmpty());
}
