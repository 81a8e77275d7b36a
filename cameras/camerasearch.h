// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include "camerastatus.h"

#include <cameras/cameras_export.h>
#include <platform/core/camerainfo.h>

#include <QList>
#include <QObject>
#include <QString>

#include <memory>

namespace Cameras {

/*! \brief A live camera that a search has found. */
struct FoundCamera
{
    Core::CameraPoolComponents::CameraInfoPtr info; //!< which camera it is
    CameraStatus status; //!< where it is, and whether it can be opened
};

/*! \brief A search for the live cameras that are reachable, while its thread goes on.
 *
 * Starts with the object and ends with it, at once whatever the network does.
 */
class ZELTO_CAMERAS_EXPORT CameraSearch : public QObject
{
    Q_OBJECT

public:
    explicit CameraSearch(QObject *parent = nullptr);
    ~CameraSearch() override;

    /*! Returns what was found so far. */
    QList<FoundCamera> cameras() const;
    /*! Returns whether the search waits until the engine has ended with a camera. */
    bool isWaiting() const;
    /*! Returns whether nothing more will be found. */
    bool isFinished() const;
    /*! Returns why the search has failed, empty when it has not. */
    QString failure() const;

Q_SIGNALS:
    /*! Something has changed of the above. */
    void changed();

private:
    struct State;

    std::shared_ptr<State> m_state;
};

} // namespace Cameras
