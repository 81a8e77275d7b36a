// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "framefile.h"

#include <cameras/framevalues.h>

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QtEndian>

#include <algorithm>
#include <cstring>

#include <tiffio.h>

using namespace Cameras;

namespace {

constexpr uint32_t linesInStrip = 64;

/*! \brief A file in memory, as the TIFF library takes it. */
class MemoryFile
{
public:
    QByteArray bytes;

    TIFF *open()
    {
        return TIFFClientOpen("memory", "wl", this, read, write, seek, close, size, nullptr, nullptr);
    }

private:
    static MemoryFile &from(thandle_t handle) { return *static_cast<MemoryFile *>(handle); }
    static tmsize_t read(thandle_t handle, void *data, tmsize_t count)
    {
        MemoryFile &file = from(handle);
        const qsizetype read = std::clamp<qsizetype>(file.bytes.size() - file.m_place, 0, count);
        std::memcpy(data, file.bytes.constData() + file.m_place, size_t(read));
        file.m_place += read;
        return read;
    }
    static tmsize_t write(thandle_t handle, void *data, tmsize_t count)
    {
        MemoryFile &file = from(handle);
        file.bytes.resize(std::max<qsizetype>(file.bytes.size(), file.m_place + count));
        std::memcpy(file.bytes.data() + file.m_place, data, size_t(count));
        file.m_place += count;
        return count;
    }
    static toff_t seek(thandle_t handle, toff_t offset, int whence)
    {
        MemoryFile &file = from(handle);
        const qsizetype base = whence == SEEK_SET ? 0 : whence == SEEK_CUR ? file.m_place : file.bytes.size();
        file.m_place = base + qsizetype(offset);
        return toff_t(file.m_place);
    }
    static int close(thandle_t) { return 0; }
    static toff_t size(thandle_t handle) { return toff_t(from(handle).bytes.size()); }

    qsizetype m_place = 0;
};

void setFields(TIFF *tiff, const FrameValues::Samples &samples, const QByteArray &description)
{
    const bool isColour = samples.channels > 1;
    TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, uint32_t(samples.width));
    TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, uint32_t(samples.height));
    TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, samples.channels);
    TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, samples.bits > 8 ? 16 : 8);
    TIFFSetField(tiff, TIFFTAG_MAXSAMPLEVALUE, (1 << samples.bits) - 1);
    TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, isColour ? PHOTOMETRIC_RGB : PHOTOMETRIC_MINISBLACK);
    TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, linesInStrip);
    TIFFSetField(tiff, TIFFTAG_IMAGEDESCRIPTION, description.constData());
    if (samples.channels > 3) {
        const uint16_t alpha = EXTRASAMPLE_UNASSALPHA;
        TIFFSetField(tiff, TIFFTAG_EXTRASAMPLES, 1, &alpha);
    }
}

QByteArray tiffOf(const FrameValues::Samples &samples, const QByteArray &description)
{
    MemoryFile file;
    TIFF *const tiff = file.open();
    if (!tiff) {
        return {};
    }
    setFields(tiff, samples, description);
    const qsizetype lineSize = samples.bytes.size() / samples.height;
    QByteArray line;
    bool isWritten = true;
    for (int y = 0; y < samples.height && isWritten; ++y) {
        line = samples.bytes.mid(lineSize * y, lineSize); // the library may swap what it gets
        isWritten = TIFFWriteScanline(tiff, line.data(), uint32_t(y)) == 1;
    }
    TIFFClose(tiff);
    return isWritten ? file.bytes : QByteArray();
}

QByteArray pnmOf(FrameValues::Samples samples)
{
    const QByteArray header = QByteArray(samples.channels == 1 ? "P5\n" : "P6\n")
        + QByteArray::number(samples.width) + ' ' + QByteArray::number(samples.height) + '\n'
        + QByteArray::number((1 << samples.bits) - 1) + '\n';
    if (samples.bits > 8) { // the higher byte comes first there
        for (qsizetype i = 0; i + 1 < samples.bytes.size(); i += 2) {
            std::swap(samples.bytes[i], samples.bytes[i + 1]);
        }
    }
    return header + samples.bytes;
}

QByteArray pngOf(const Frame &frame, const FrameConversion::Look &look)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    (void)buffer.open(QIODevice::WriteOnly);
    FrameConversion conversion;
    conversion.setLook(look);
    return conversion.image(frame).save(&buffer, "PNG") ? bytes : QByteArray();
}

QByteArray descriptionOf(const Frame &frame)
{
    return "PixelFormat=" + pixelFormatName(frame.pixelFormat).toUtf8()
        + " Frame=" + QByteArray::number(frame.number) + " Time=" + QByteArray::number(frame.cameraTime);
}

} // namespace

FrameFile::Kind FrameFile::kindOf(const QString &fileName)
{
    const QString suffix = QFileInfo(fileName).suffix().toLower();
    if (suffix == QLatin1String("png")) {
        return Kind::Png;
    }
    if (suffix == QLatin1String("tif") || suffix == QLatin1String("tiff")) {
        return Kind::Tiff;
    }
    return suffix == QLatin1String("pgm") || suffix == QLatin1String("ppm") || suffix == QLatin1String("pnm")
        ? Kind::Pnm
        : Kind::Bytes;
}

QString FrameFile::suffix(Kind kind, const Frame &frame)
{
    switch (kind) {
    case Kind::Png:
        return QStringLiteral(".png");
    case Kind::Tiff:
        return QStringLiteral(".tif");
    case Kind::Pnm:
        return FrameValues::channels(frame.pixelFormat) > 1 ? QStringLiteral(".ppm") : QStringLiteral(".pgm");
    case Kind::Bytes:
        break;
    }
    return QStringLiteral(".raw");
}

FrameFile::Kind FrameFile::possibleKind(Kind wanted, const Frame &frame)
{
    const int channels = FrameValues::channels(frame.pixelFormat);
    const bool isPossible = wanted == Kind::Bytes
        || (wanted == Kind::Png && FrameConversion::canConvert(frame.pixelFormat))
        || (wanted == Kind::Tiff && channels > 0)
        || (wanted == Kind::Pnm && (channels == 1 || channels == 3));
    return isPossible ? wanted : Kind::Bytes;
}

QByteArray FrameFile::contents(const Frame &frame, Kind kind, const FrameConversion::Look &look,
                               QString *failure)
{
    if (possibleKind(kind, frame) != kind) {
        *failure =
            tr("The pixel format %1 cannot be saved in this kind of file. Its bytes can, as a file whose "
               "name ends in .raw.")
                .arg(pixelFormatName(frame.pixelFormat));
        return {};
    }
    QByteArray contents = frame.bytes;
    if (kind == Kind::Png) {
        contents = pngOf(frame, look);
    } else if (kind != Kind::Bytes) {
        const FrameValues::Samples samples = FrameValues::all(frame);
        contents = samples.channels == 0 ? QByteArray()
            : kind == Kind::Tiff         ? tiffOf(samples, descriptionOf(frame))
                                         : pnmOf(samples);
    }
    if (contents.isEmpty()) {
        *failure = tr("There is nothing in the image that could be saved.");
    }
    return contents;
}

QString FrameFile::writeNew(const QString &fileName, const QByteArray &contents)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        return QFileInfo::exists(fileName)
            ? tr("%1 is there already, and nothing is overwritten.").arg(fileName)
            : tr("Cannot write %1: %2").arg(fileName, file.errorString());
    }
    if (file.write(contents) == contents.size() && file.flush()) {
        return {};
    }
    const QString failure = tr("Cannot write %1: %2").arg(fileName, file.errorString());
    file.close();
    QFile::remove(fileName); // the member refuses to, after a failure
    return failure;
}

QString FrameFile::save(const Frame &frame, const QString &fileName, const FrameConversion::Look &look)
{
    QString failure;
    const QByteArray bytes = contents(frame, kindOf(fileName), look, &failure);
    return failure.isEmpty() ? writeNew(fileName, bytes) : failure;
}
