// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "descriptionarchive_p.h"

#include <platform/core/exception.h>

#include <archive.h>
#include <archive_entry.h>

#include <algorithm>
#include <memory>

using Core::Exception::BaseException;

namespace Cameras {

namespace {

constexpr qsizetype blockSize = 65536;

using Reader = std::unique_ptr<struct archive, decltype(&archive_read_free)>;

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

// What the archive says of sizes is not relied on.
QByteArray DescriptionArchive::unpacked(struct archive *reader)
{
    QByteArray xml;
    QByteArray block(blockSize, Qt::Uninitialized);
    for (;;) {
        const la_ssize_t size = archive_read_data(reader, block.data(), size_t(block.size()));
        if (size < 0) {
            throw BaseException(tr("the archive is damaged"));
        }
        if (size == 0) {
            return xml;
        }
        if (xml.size() + size > largest) {
            throw BaseException(tr("the file is too large"));
        }
        xml.append(block.constData(), qsizetype(size));
    }
}

QByteArray DescriptionArchive::unzipped(const QByteArray &contents)
{
    const Reader reader(archive_read_new(), archive_read_free);
    archive_read_support_format_zip(reader.get());
    if (archive_read_open_memory(reader.get(), contents.constData(), size_t(contents.size())) != ARCHIVE_OK) {
        throw BaseException(tr("the archive is damaged"));
    }
    struct archive_entry *entry = nullptr;
    int result = archive_read_next_header(reader.get(), &entry);
    for (; result == ARCHIVE_OK || result == ARCHIVE_WARN;
         result = archive_read_next_header(reader.get(), &entry)) {
        if (QByteArray(archive_entry_pathname(entry)).toLower().endsWith(".xml")) {
            return unpacked(reader.get());
        }
    }
    throw BaseException(result == ARCHIVE_EOF ? tr("the archive holds no camera description")
                                              : tr("the archive is damaged"));
}

} // namespace Cameras
