// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

// A window of an application's own with a feature tree, undo and redo, a list of changes, and settings that
// are saved to files and loaded from there. Any parameter collections do; here they are those of the embedded
// camera.

#include <cameras/camera.h>
#include <platform/core/exception.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>
#include <zeltoviewercomponents/settings/changehistory.h>
#include <zeltoviewercomponents/settings/changehistorywidget.h>
#include <zeltoviewercomponents/settings/settingsapplier.h>
#include <zeltoviewercomponents/settings/settingsreader.h>

#include <QApplication>
#include <QDockWidget>
#include <QFileDialog>
#include <QMainWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QTimer>

#include <memory>

class Window : public QMainWindow
{
    Q_OBJECT

public:
    Window()
    {
        const auto nodeMaps = m_camera->nodeMaps();
        for (const Cameras::NodeMap &nodeMap : nodeMaps) {
            m_tree.addParameterCollection(nodeMap.collection, nodeMap.title, nodeMap.name, nodeMap.usesUtf8);
            m_nodeMaps.append({nodeMap.name, nodeMap.collection});
        }
        setCentralWidget(&m_tree);

        // The history: what the user changes in the tree is recorded, and taken back with the usual keys.
        m_history.open(m_nodeMaps);
        connect(&m_tree,
                SIGNAL(edited(QSharedPointer<ParameterCollection::IParameter>, QString, QString, QString)),
                &m_history,
                SLOT(record(QSharedPointer<ParameterCollection::IParameter>, QString, QString, QString)));
        connect(&m_history, SIGNAL(taskCreated(SettingsTask *)), this, SLOT(prepare(SettingsTask *)));
        QMenu *const menu = menuBar()->addMenu(QStringLiteral("&Camera"));
        menu->addAction(QStringLiteral("&Undo"), QKeySequence::Undo, &m_history, SLOT(undo()));
        menu->addAction(QStringLiteral("&Redo"), QKeySequence::Redo, &m_history, SLOT(redo()));
        menu->addAction(QStringLiteral("&Save Settings…"), QKeySequence::Save, this, SLOT(save()));
        menu->addAction(QStringLiteral("&Load Settings…"), QKeySequence::Open, this, SLOT(load()));

        auto *const dock = new QDockWidget(QStringLiteral("Changes"), this);
        dock->setWidget(new ChangeHistoryWidget(&m_history, dock));
        addDockWidget(Qt::BottomDockWidgetArea, dock);
    }

private slots:
    // While a task is at work on all features, the tree neither edits nor polls.
    void prepare(SettingsTask *task)
    {
        m_tree.setResting(true);
        connect(task, SIGNAL(finished()), this, SLOT(endRest()));
    }
    void endRest() { m_tree.setResting(false); }

    void save()
    {
        m_reader = std::make_unique<SettingsReader>(m_nodeMaps);
        prepare(m_reader.get());
        connect(m_reader.get(), SIGNAL(finished()), this, SLOT(onRead()));
        m_reader->start();
    }
    void onRead()
    {
        const QString fileName = QFileDialog::getSaveFileName(this);
        try {
            if (!fileName.isEmpty()) {
                m_reader->settings().save(fileName);
                m_history.setUnmodified();
            }
        } catch (const Core::Exception::BaseException &exception) {
            QMessageBox::warning(this, QString(), exception.getMessage());
        }
    }

    void load()
    {
        m_fileName = QFileDialog::getOpenFileName(this);
        try {
            if (!m_fileName.isEmpty()) {
                m_applier = std::make_unique<SettingsApplier>(FeatureSettings::load(m_fileName), m_nodeMaps);
                prepare(m_applier.get());
                connect(m_applier.get(), SIGNAL(finished()), this, SLOT(onApplied()));
                m_applier->start();
            }
        } catch (const Core::Exception::BaseException &exception) {
            QMessageBox::warning(this, QString(), exception.getMessage());
        }
    }
    void onApplied()
    {
        // One step of undo, however many values it is.
        m_history.recordApplied(m_fileName, m_applier->settings(), m_applier->former(), m_applier->report());
        m_history.setUnmodified(m_applier->report());
        if (!m_applier->report().isSuccess()) {
            QMessageBox::warning(this, QString(), m_applier->report().problems().join(QLatin1Char('\n')));
        }
    }

private:
    std::unique_ptr<Cameras::Camera> m_camera = Cameras::Camera::openEmbedded();
    QList<SettingsNodeMap> m_nodeMaps;
    FeatureTreeWidget m_tree{QStringLiteral("tree")};
    ChangeHistory m_history;
    QString m_fileName;
    std::unique_ptr<SettingsReader> m_reader;
    std::unique_ptr<SettingsApplier> m_applier;
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    Window window;
    window.resize(700, 800);
    window.show();
    if (application.arguments().contains(QLatin1String("--once"))) {
        QTimer::singleShot(0, &application, SLOT(quit()));
    }
    return QApplication::exec();
}

#include "main.moc"
