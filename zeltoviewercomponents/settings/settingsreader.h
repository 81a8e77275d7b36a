// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "featuresettings.h"
#include "settingstask.h"

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QList>
#include <QStringList>

/*! \brief Reads the settings of a camera.
 *
 * Takes the features that the description calls "Streamable"; where it calls none so, those that can be read
 * and written now. Features that others select are read once for each available entry of their selectors
 * (integers: up to 256 values). Every selector is left as it was, whatever happens. Contents of plain
 * registers, look-up tables and files stay out.
 *
 * \ingroup settings
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT SettingsReader : public SettingsTask
{
    Q_OBJECT

public:
    /*! Reads the features of \a nodeMaps, once it is started. */
    explicit SettingsReader(const QList<SettingsNodeMap> &nodeMaps, QObject *parent = nullptr);
    ~SettingsReader() override;

    /*! Returns what was read; after a cancellation or a loss, as far as that went. The origin is for the
     * caller to fill in. */
    const FeatureSettings &settings() const;
    /*! Returns what could not be read although it belongs to the settings, a line for each. */
    const QStringList &notes() const;

protected:
    std::shared_ptr<SettingsScript> nextScript(int *nodeMap) override;
    void take(SettingsScript &script) override;

private:
    FeatureSettings m_settings;
    QStringList m_notes;
    int m_next = 0;
};
