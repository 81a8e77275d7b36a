// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

class QIODevice;

/*! \brief The assignments that bring the node maps of a camera into a state, in order.
 *
 * A plain value: it is read from a camera by SettingsReader, brought to a camera by SettingsApplier, and kept
 * in text files. Features that depend on selectors follow assignments to these.
 *
 * Such a file is UTF-8 text with one assignment on a line: the feature's name, a tab, the value as
 * IParameter::setValueFromString() takes it. Lines that begin with "#" are comments; some of them, "# Model:"
 * and the like, tell what the file is about. Files without any of these load as well, and may have blanks in
 * place of the tab.
 *
 * \ingroup settings
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT FeatureSettings
{
    Q_DECLARE_TR_FUNCTIONS(FeatureSettings)

public:
    /*! \brief The camera that settings were read from, as far as it is known. */
    struct Origin
    {
        QString vendor; //!< who made it
        QString model; //!< its model name
        QString serialNumber; //!< as it tells it
        QDateTime taken; //!< when it was read
    };

    /*! \brief One line of a file. */
    struct Assignment
    {
        QString name; //!< short, or full in files from elsewhere
        QString value; //!< as text
        int line = 0; //!< in the file, 0 when it comes from no file
    };

    /*! \brief What is assigned within one node map. */
    struct NodeMap
    {
        QString name; //!< such as "@CameraDevice"; empty in files that do not tell
        QList<Assignment> assignments; //!< in the order of the file
        QHash<QString, QStringList> selected; //!< by selector, the features that it selects
        bool restoresSelectors = false; //!< whether selectors are to be left as they are found
    };

    /*! \brief A feature and the value that it gets, under certain values of the selectors it depends on. */
    struct Setting
    {
        QString nodeMap; //!< such as "@CameraDevice"
        QString name; //!< of the feature
        QList<Assignment> selectors; //!< outer ones first
        QString value; //!< as text
        int line = 0; //!< in the file, 0 when it comes from no file

        /*! Returns the name for people: "Gain", or "TriggerMode [TriggerSelector=LineStart]". */
        QString title() const;
        /*! Returns whether \a other is the same feature under the same selectors. */
        bool isSameFeature(const Setting &other) const;
    };

    /*! Returns whether there is no assignment. */
    bool isEmpty() const;
    /*! Returns each feature once for each combination of its selectors, with the value assigned last. */
    QList<Setting> settings() const;
    /*! Returns settings that bring about \a settings alone and leave all selectors as they are found. */
    static FeatureSettings of(const QList<Setting> &settings);

    /*! Reads a file. Throws Core::Exception::BaseException that names the line and what is wrong with it. */
    static FeatureSettings read(QIODevice &device);
    /*! As read(), from the file \a fileName, which the exception names as well. */
    static FeatureSettings load(const QString &fileName);
    /*! Writes a file. Throws Core::Exception::BaseException when not all could be written. */
    void write(QIODevice &device) const;
    /*! As write(), to the file \a fileName, which is replaced as a whole or left as it was. */
    void save(const QString &fileName) const;

    Origin origin; //!< where the settings come from
    QList<NodeMap> nodeMaps; //!< in the order of the file
};
