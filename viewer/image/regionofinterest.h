// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/settings/featuresettings.h>
#include <zeltoviewercomponents/settings/settingsreport.h>
#include <zeltoviewercomponents/settings/settingstask.h>

#include <QList>
#include <QObject>
#include <QRect>
#include <QString>

#include <memory>

class SettingsApplier;

/*! \brief Writes the region of interest of a camera: Width, Height, OffsetX and OffsetY.
 *
 * What was drawn becomes the nearest region that the camera has. Where one of the four stands in the way of
 * another, the other goes first.
 */
class RegionOfInterest : public QObject
{
    Q_OBJECT

public:
    /*! \brief What a camera allows along one side. */
    struct Side
    {
        qint64 smallest = 1; //!< size
        qint64 largest = 1; //!< offset and size together
        qint64 sizeStep = 1;
        qint64 offsetStep = 1;
    };
    /*! \brief A region along one side. */
    struct Span
    {
        qint64 offset = 0;
        qint64 size = 0;

        bool operator==(const Span &other) const = default;
    };

    explicit RegionOfInterest(QObject *parent = nullptr);
    ~RegionOfInterest() override;

    /*! Names the camera's node maps; none when no camera is open. */
    void setNodeMaps(const QList<SettingsNodeMap> &nodeMaps);
    /*! Returns whether the camera has a region that can be set, apart from images that lock it. */
    bool isPossible() const;

    /*! Returns the span that \a side has nearest to \a wanted. */
    static Span nearest(const Span &wanted, const Side &side);

public Q_SLOTS:
    /*! Makes \a drawn, in pixels of the present region, the region. */
    void setRegion(const QRect &drawn);
    /*! Says whether others write to the camera, and nothing can be set. */
    void setBusy(bool isBusy) { m_isBusy = isBusy; }
    /*! Makes all of the sensor the region. */
    void setFullFrame();

Q_SIGNALS:
    /*! Writing begins, or has ended: whatever locks the features has to be out of the way in between. */
    void aboutToWrite();
    void written();
    /*! The region was written, wholly or in part as \a report says; \a former brings back what was. */
    void applied(const QString &name, const FeatureSettings &settings, const FeatureSettings &former,
                 const SettingsReport &report);
    /*! The camera did not take it, \a details say why. */
    void failed(const QString &message, const QString &details);

private Q_SLOTS:
    void onFinished();

private:
    struct Features;

    Features features(bool isHorizontal) const;
    Side sideOf(const Features &features) const;
    void write(const Span &horizontal, const Span &vertical);

    QList<SettingsNodeMap> m_nodeMaps;
    std::unique_ptr<SettingsApplier> m_applier;
    bool m_isBusy = false;
};
