// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "featuresettings.h"
#include "settingsreport.h"
#include "settingstask.h"

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QList>

#include <memory>

/*! \brief Brings a camera into the state that settings describe.
 *
 * Features that have their value already are not written. What is refused is tried again after the others
 * until nothing more succeeds, so that the order of features that limit each other does not matter. In the
 * end all is read back.
 *
 * \ingroup settings
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT SettingsApplier : public SettingsTask
{
    Q_OBJECT

public:
    /*! \brief What becomes of the values before. */
    enum class Before {
        Keep, //!< reads the state of the camera first, for former()
        Forget,
    };

    /*! Applies \a settings to the features of \a nodeMaps, once it is started. */
    SettingsApplier(FeatureSettings settings, const QList<SettingsNodeMap> &nodeMaps,
                    Before before = Before::Keep, QObject *parent = nullptr);
    ~SettingsApplier() override;

    /*! Returns what is applied. */
    const FeatureSettings &settings() const;
    /*! Returns the state before: applying it puts back what was. Empty with Before::Forget. */
    const FeatureSettings &former() const;
    /*! Returns what came of it; complete when finished. */
    const SettingsReport &report() const;
    /*! Returns a task, not started yet, that puts back what was before. */
    std::unique_ptr<SettingsApplier> putBack() const;

protected:
    std::shared_ptr<SettingsScript> nextScript(int *nodeMap) override;
    void take(SettingsScript &script) override;

private:
    FeatureSettings m_settings;
    FeatureSettings m_former;
    SettingsReport m_report;
    QList<FeatureSettings::NodeMap> m_placed; // as the camera has the features
    bool m_isPlaced = false;
    int m_next = 0; // of these
    int m_nextToKeep = 0; // of the node maps whose state is read first
};
