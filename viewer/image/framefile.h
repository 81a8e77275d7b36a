// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cameras/frame.h>
#include <cameras/frameconversion.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

/*! \brief Frames as files: as they are shown, their values, or their bytes. */
class FrameFile
{
    Q_DECLARE_TR_FUNCTIONS(FrameFile)

public:
    enum class Kind {
        Png, //!< as it looks, pixel by pixel
        Tiff, //!< the values, 8 or 16 bits
        Pnm, //!< the same, as PGM or PPM
        Bytes, //!< as they came
    };

    /*! Returns the kind that the end of \a fileName stands for; bytes when it is none of the others. */
    static Kind kindOf(const QString &fileName);
    /*! Returns the end that file names of \a kind get for \a frame, such as ".tif". */
    static QString suffix(Kind kind, const Cameras::Frame &frame);
    /*! Returns \a wanted, or bytes where \a frame cannot be of that kind. */
    static Kind possibleKind(Kind wanted, const Cameras::Frame &frame);
    /*! Returns \a frame as the contents of a file, empty where it cannot be of that \a kind; \a failure tells
     * why. */
    static QByteArray contents(const Cameras::Frame &frame, Kind kind,
                               const Cameras::FrameConversion::Look &look, QString *failure);
    /*! Writes a new file, never one that is there. Returns why that failed, empty when it did not. */
    static QString writeNew(const QString &fileName, const QByteArray &contents);
    /*! Writes \a frame to the new file \a fileName, as its end says; \a look is that of what is shown.
     * Returns why that failed, empty when it did not. */
    static QString save(const Cameras::Frame &frame, const QString &fileName,
                        const Cameras::FrameConversion::Look &look = {});
};
