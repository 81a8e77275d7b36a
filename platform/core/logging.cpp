// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "logging.h"

#include <QHash>
#include <QLoggingCategory>

#include <memory>
#include <mutex>
#include <shared_mutex>
#include <utility>
#include <vector>

namespace Core::Logging {

namespace {

struct Category
{
    explicit Category(QByteArray categoryName)
        : name(std::move(categoryName))
        , category(name.constData(), QtInfoMsg)
    {
    }

    QByteArray name; // QLoggingCategory keeps a pointer to the text
    QLoggingCategory category;
};

struct Registry
{
    std::shared_mutex mutex;
    QHash<QByteArray, CategoryId> ids;
    std::vector<std::unique_ptr<Category>> categories; // the category of id i is at i - 1
};

// Never destroyed: destructors of static objects may still log.
Registry &registry()
{
    static auto *const instance = new Registry;
    return *instance;
}

const QLoggingCategory *category(CategoryId id)
{
    Registry &all = registry();
    const std::shared_lock lock(all.mutex);
    return id >= 1 && id <= all.categories.size() ? &all.categories[id - 1]->category : nullptr;
}

} // namespace

CategoryId getCatId(const char *name)
{
    const QByteArray key(name);
    Registry &all = registry();
    const std::unique_lock lock(all.mutex);
    CategoryId &id = all.ids[key];
    if (id == 0) {
        all.categories.push_back(std::make_unique<Category>(key));
        id = all.categories.size();
    }
    return id;
}

void createLogEntry(ELogLevel level, CategoryId id, const QString &text)
{
    const QLoggingCategory *const target = category(id);
    if (!target) {
        return;
    }
    const QMessageLogger logger(nullptr, 0, nullptr, target->categoryName());
    switch (level) {
    case ELogLevel::Debug:
        logger.debug(*target).noquote() << text;
        break;
    case ELogLevel::Info:
        logger.info(*target).noquote() << text;
        break;
    case ELogLevel::Warning:
        logger.warning(*target).noquote() << text;
        break;
    case ELogLevel::Critical:
        logger.critical(*target).noquote() << text;
        break;
    }
}

} // namespace Core::Logging
