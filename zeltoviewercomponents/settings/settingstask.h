// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <platform/parametercollection/iparametercollection.h>
#include <zeltoviewercomponents/zeltoviewercomponents_export.h>

#include <QList>
#include <QObject>
#include <QSharedPointer>
#include <QString>

#include <memory>

class SettingsScript;

/*! \brief A node map of the camera that settings are read from or applied to.
 *
 * \ingroup settings
 */
struct SettingsNodeMap
{
    QString name; //!< such as "@CameraDevice"
    QSharedPointer<ParameterCollection::IParameterCollection> collection; //!< its parameters
};

/*! \brief A longer piece of work on the features of a camera, which leaves the event loop running.
 *
 * Works through the node maps one by one: on the collection's own thread where it offers one
 * (ParameterCollection::IBatchRunner), else with one access to a feature in each turn of the event loop. All
 * functions are called on the thread of the task, all signals are sent there. Between started() and
 * finished() the host keeps others, such as a feature tree, from writing and polling.
 *
 * \ingroup settings
 */
class ZELTO_ZELTOVIEWERCOMPONENTS_EXPORT SettingsTask : public QObject
{
    Q_OBJECT

public:
    /*! Cancels the work if it is still going on, without waiting for its end. */
    ~SettingsTask() override;

    /*! Returns whether the work has begun and is not at its end. */
    bool isRunning() const;
    /*! Returns whether cancel() came before the end. */
    bool isCancelled() const;
    /*! Returns whether the camera stopped answering. */
    bool isLost() const;

public Q_SLOTS:
    /*! Begins the work; once. finished() follows from the event loop, always. */
    void start();
    /*! Ends the work after the access that is under way, with selectors put back. finished() still follows.
     */
    void cancel();

Q_SIGNALS:
    /*! The work has begun. */
    void started();
    /*! \a done of about \a total features are done, \a feature is next. Sent no more than some times a
     * second.
     */
    void progress(int done, int total, const QString &feature);
    /*! The work is at its end, however it came to it. */
    void finished();

protected:
    explicit SettingsTask(QList<SettingsNodeMap> nodeMaps, QObject *parent = nullptr);

    const QList<SettingsNodeMap> &nodeMaps() const;
    /*! Returns what is to be done next, and where; null when all is done. */
    virtual std::shared_ptr<SettingsScript> nextScript(int *nodeMap) = 0;
    /*! Takes over what \a script has come to. */
    virtual void take(SettingsScript &script) = 0;

private Q_SLOTS:
    void advance();
    void onProgress(int done, int total, const QString &feature);
    void onScriptFinished();

private:
    QList<SettingsNodeMap> m_nodeMaps;
    std::shared_ptr<SettingsScript> m_script;
    int m_done = 0; // with the scripts before
    int m_total = 0; // with this one
    bool m_isRunning = false;
    bool m_isCancelled = false;
    bool m_isLost = false;
};
