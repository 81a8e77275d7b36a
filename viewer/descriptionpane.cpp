// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "descriptionpane.h"

#include "levels.h"

#include <platform/core/formatdoublevalue.h>
#include <platform/core/guard.h>
#include <platform/core/livetexts.h>
#include <zeltoviewercomponents/errorhandling/helplink.h>
#include <zeltoviewercomponents/featuretree/featuretreenames.h>

#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

using namespace ParameterCollection;

ZELTO_LOG_CATEGORY("zelto.viewer.descriptionPane")

namespace {

constexpr int textMargin = 4; // a text document's own

class Page
{
public:
    void heading(const QString &text) { m_html += QStringLiteral("<h3>%1</h3>").arg(text.toHtmlEscaped()); }
    void paragraph(const QString &text)
    {
        if (!text.isEmpty()) {
            m_html += QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped());
        }
    }
    void row(const QString &label, const QString &text)
    {
        if (!text.isEmpty()) {
            m_rows += QStringLiteral("<tr><td style=\"white-space:pre\">%1  </td><td>%2</td></tr>")
                          .arg(label.toHtmlEscaped(), text.toHtmlEscaped());
        }
    }
    QString html() const { return m_html + QStringLiteral("<p><table>%1</table></p>").arg(m_rows); }

private:
    QString m_html;
    QString m_rows;
};

QString typeText(ParameterType type)
{
    switch (type) {
    case ParameterType::Integer:
        return DescriptionPane::tr("Integer");
    case ParameterType::Boolean:
        return DescriptionPane::tr("Boolean");
    case ParameterType::Float:
        return DescriptionPane::tr("Floating-point number");
    case ParameterType::Command:
        return DescriptionPane::tr("Command");
    case ParameterType::String:
        return DescriptionPane::tr("Text");
    case ParameterType::Enumeration:
        return DescriptionPane::tr("Enumeration");
    case ParameterType::Category:
        return DescriptionPane::tr("Category");
    default:
        return {};
    }
}

QString accessText(const ParameterData &data)
{
    switch (data.accessMode()) {
    case GenApi::NI:
        return DescriptionPane::tr("Not implemented");
    case GenApi::RW:
        return DescriptionPane::tr("Read and write");
    case GenApi::RO:
        return DescriptionPane::tr("Read only");
    case GenApi::WO:
        return DescriptionPane::tr("Write only");
    default:
        return DescriptionPane::tr("Not available");
    }
}

void addRange(Page &page, const ParameterData &data, const QString &unit)
{
    const QString suffix = unit.isEmpty() ? QString() : QLatin1Char(' ') + unit;
    const QString range = DescriptionPane::tr("%1 to %2%3");
    const QLocale locale;
    if (const auto *const integer = dynamic_cast<const IntegerParameterData *>(&data)) {
        page.row(DescriptionPane::tr("Range"), range.arg(integer->minimum).arg(integer->maximum).arg(suffix));
        page.row(DescriptionPane::tr("Increment"), QString::number(integer->increment));
    } else if (const auto *const floating = dynamic_cast<const FloatParameterData *>(&data)) {
        const auto format = [&locale, floating](double value) {
            return formatFeatureValue(value, floating->displayNotation, floating->displayPrecision, locale);
        };
        page.row(DescriptionPane::tr("Range"),
                 range.arg(format(floating->minimum), format(floating->maximum), suffix));
        if (floating->increment != 0.0) {
            page.row(DescriptionPane::tr("Increment"), format(floating->increment));
        }
    } else if (const auto *const entries = dynamic_cast<const EnumParameterData *>(&data)) {
        page.row(DescriptionPane::tr("Entries"), entries->displayTexts.join(QStringLiteral(", ")));
    }
}

QString describe(const IParameter &parameter)
{
    const auto access = parameter.propertyAccess();
    const auto data = parameter.parameterData();
    Page page;
    page.heading(access->property(QStringLiteral("DisplayName"), parameter.name()));
    const QString toolTip = access->property(QStringLiteral("Tooltip"));
    const QString description = access->property(QStringLiteral("Description"));
    page.paragraph(toolTip);
    if (description != toolTip) {
        page.paragraph(description);
    }
    if (parameter.name() != FeatureTreeNames::root) { // by which nobody knows the row of a node map
        page.row(DescriptionPane::tr("Name"), parameter.name());
    }
    if (data) {
        page.row(DescriptionPane::tr("Type"), typeText(data->type));
        if (data->type != ParameterType::Category) {
            page.row(DescriptionPane::tr("Access"), accessText(*data));
            addRange(page, *data, access->property(QStringLiteral("Unit")));
        }
        page.row(DescriptionPane::tr("Visibility"), Levels::name(data->visibility));
    }
    page.row(DescriptionPane::tr("Unit"), access->property(QStringLiteral("Unit")));
    return page.html();
}

QUrl documentation(const IParameter &parameter)
{
    return QUrl(parameter.propertyAccess()->property(QStringLiteral("DocuURL")));
}

} // namespace

DescriptionPane::DescriptionPane(QWidget *parent)
    : QWidget(parent)
    , m_text(new QTextBrowser(this))
    , m_help(new HelpLink(this))
{
    m_text->setOpenExternalLinks(true);
    (new Core::LiveTexts(this))->add(m_text, &QWidget::setAccessibleName, [] {
        return tr("Description of the current feature");
    });
    m_help->setContentsMargins(textMargin, 0, textMargin, textMargin);
    m_help->hide();
    setFocusProxy(m_text);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_help);
}

DescriptionPane::~DescriptionPane() = default;

void DescriptionPane::showParameter(QSharedPointer<IParameter> parameter)
{
    if (m_parameter) {
        disconnect(m_parameter.data(), nullptr, this, nullptr);
    }
    m_parameter = std::move(parameter);
    if (m_parameter) {
        connect(
            m_parameter.data(),
            SIGNAL(parameterDataChangedDecoupled(QSharedPointer<const ParameterCollection::ParameterData>)),
            this, SLOT(refresh()));
    }
    refresh();
}

void DescriptionPane::refresh()
{
    QString page;
    QUrl help;
    Core::guardedRun({logCategory(), "DescriptionPane::refresh"},
                     QStringLiteral("Failed to describe a feature"), [this, &page, &help] {
                         if (m_parameter) {
                             page = describe(*m_parameter);
                             help = documentation(*m_parameter);
                         }
                     });
    display(page, help);
}

void DescriptionPane::showText(const QString &text)
{
    showParameter(nullptr);
    display(text, QUrl());
}

void DescriptionPane::display(const QString &page, const QUrl &help)
{
    m_help->setAddress(help);
    m_help->setVisible(!m_help->address().isEmpty());
    if (page == m_page) {
        return; // values that poll leave selection and scrolling alone
    }
    m_page = page;
    m_text->setHtml(page);
}
