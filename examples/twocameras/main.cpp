// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

// Two cameras side by side: one search, one user level and one list of favorites for both.

#include <cameras/camera.h>
#include <zeltoviewercomponents/featuretree/featuretreewidget.h>
#include <zeltoviewercomponents/featuretree/searchedit.h>

#include <QApplication>
#include <QComboBox>
#include <QMetaEnum>
#include <QSplitter>
#include <QTimer>
#include <QVBoxLayout>

#include <array>
#include <memory>
#include <utility>

class Window : public QWidget
{
    Q_OBJECT

public:
    Window()
    {
        auto *const search = new SearchEdit(this);
        search->setPlaceholder(QStringLiteral("Search both"));
        connect(search, SIGNAL(textChanged(QString)), this, SLOT(search(QString)));
        auto *const levels = new QComboBox(this);
        for (const GenApi::EVisibility level : {GenApi::Beginner, GenApi::Expert, GenApi::Guru}) {
            levels->addItem(
                QString::fromLatin1(QMetaEnum::fromType<GenApi::EVisibility>().valueToKey(level)));
        }
        connect(levels, SIGNAL(activated(int)), this, SLOT(setLevel(int)));
        auto *const top = new QHBoxLayout;
        top->addWidget(search);
        top->addWidget(levels);

        auto *const splitter = new QSplitter(this);
        for (const auto &camera : m_cameras) {
            auto *const tree = new FeatureTreeWidget(splitter);
            tree->setVisibility(GenApi::Beginner);
            const auto nodeMaps = camera->nodeMaps();
            for (const Cameras::NodeMap &nodeMap : nodeMaps) {
                tree->addParameterCollection(nodeMap.collection, nodeMap.title, nodeMap.name,
                                             nodeMap.usesUtf8);
            }
            tree->expandRootNodes();
            m_trees.append(tree);
        }
        auto *const layout = new QVBoxLayout(this);
        layout->addLayout(top);
        layout->addWidget(splitter);
    }

private slots:
    void search(const QString &text)
    {
        for (FeatureTreeWidget *const tree : std::as_const(m_trees)) {
            tree->setSearchText(text);
        }
    }
    void setLevel(int level)
    {
        for (FeatureTreeWidget *const tree : std::as_const(m_trees)) {
            tree->onVisibilityChanged(level);
        }
    }

private:
    std::array<std::unique_ptr<Cameras::Camera>, 2> m_cameras{Cameras::Camera::openEmbedded(),
                                                              Cameras::Camera::openEmbedded()};
    QList<FeatureTreeWidget *> m_trees;
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    Window window;
    window.resize(1000, 700);
    window.show();
    if (application.arguments().contains(QLatin1String("--once"))) {
        QTimer::singleShot(0, &application, SLOT(quit()));
    }
    return QApplication::exec();
}

#include "main.moc"
