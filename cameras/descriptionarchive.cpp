// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "descriptionarchive_p.h"

#include "aravis_p.h"

#include <platform/core/exception.h>

#include <algorithm>
#include <memory>

using Core::Exception::BaseException;

namespace Cameras {

namespace {

// Above its first tag a description may have lines that XML does not allow there: of a download, of an
// editor.
QByteArray fromFirstTag(const QByteArray &text)
{
    if (text.left(4).contains('\0')) {
        return text; // two or four bytes for each character
    }
    const qsizetype declaration = text.indexOf("<?xml version");
    const QByteArray above = text.left(declaration);
    if (declaration >= 0 && !above.contains("<RegisterDescription") && !above.contains("<!DOCTYPE")) {
        return text.mid(declaration); // comments are skipped, too
    }
    return text.mid(std::max(text.indexOf('<'), qsizetype(0)));
}

} // namespace

QByteArray DescriptionArchive::xml(const QByteArray &contents)
{
    return fromFirstTag(contents.startsWith("PK") ? unzipped(contents) : contents);
}

QByteArray DescriptionArchive::unzipped(const QByteArray &archive)
{
    const std::unique_ptr<ArvZip, decltype(&arv_zip_free)> zip(
        arv_zip_new(archive.constData(), size_t(archive.size())), arv_zip_free);
    QByteArray xml;
    for (const GSList *entry = zip ? arv_zip_get_file_list(zip.get()) : nullptr; entry && xml.isEmpty();
         entry = entry->next) {
        auto *file = static_cast<ArvZipFile *>(entry->data);
        const char *name = arv_zip_file_get_name(file);
        if (!QString::fromUtf8(name).endsWith(QLatin1String(".xml"), Qt::CaseInsensitive)) {
            continue;
        }
        if (arv_zip_file_get_uncompressed_size(file) > size_t(largest)) {
            throw BaseException(tr("the file is too large"));
        }
        size_t size = 0;
        void *data = arv_zip_get_file(zip.get(), name, &size);
        xml = QByteArray(static_cast<const char *>(data), qsizetype(size));
        g_free(data);
    }
    if (xml.isEmpty()) {
        throw BaseException(tr("the archive holds no camera description"));
    }
    return xml;
}

} // namespace Cameras
