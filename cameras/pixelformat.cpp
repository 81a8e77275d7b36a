// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "pixelformat.h"

#include <QLatin1String>

#include <algorithm>
#include <array>

namespace Cameras {

namespace {

struct Entry
{
    const char *name;
    quint32 code;
};

constexpr std::array shownFormats{
    Entry{"Mono8", 0x01080001},
    Entry{"Mono10", 0x01100003},
    Entry{"Mono12", 0x01100005},
    Entry{"Mono14", 0x01100025},
    Entry{"Mono16", 0x01100007},
    Entry{"Mono10p", 0x010A0046},
    Entry{"Mono12p", 0x010C0047},
    Entry{"Mono14p", 0x010E0104},
    Entry{"Mono10Packed", 0x010C0004},
    Entry{"Mono12Packed", 0x010C0006},
    Entry{"BayerGR8", 0x01080008},
    Entry{"BayerRG8", 0x01080009},
    Entry{"BayerGB8", 0x0108000A},
    Entry{"BayerBG8", 0x0108000B},
    Entry{"BayerGR10", 0x0110000C},
    Entry{"BayerRG10", 0x0110000D},
    Entry{"BayerGB10", 0x0110000E},
    Entry{"BayerBG10", 0x0110000F},
    Entry{"BayerGR12", 0x01100010},
    Entry{"BayerRG12", 0x01100011},
    Entry{"BayerGB12", 0x01100012},
    Entry{"BayerBG12", 0x01100013},
    Entry{"BayerGR16", 0x0110002E},
    Entry{"BayerRG16", 0x0110002F},
    Entry{"BayerGB16", 0x01100030},
    Entry{"BayerBG16", 0x01100031},
    Entry{"BayerGR10p", 0x010A0056},
    Entry{"BayerRG10p", 0x010A0058},
    Entry{"BayerGB10p", 0x010A0054},
    Entry{"BayerBG10p", 0x010A0052},
    Entry{"BayerGR12p", 0x010C0057},
    Entry{"BayerRG12p", 0x010C0059},
    Entry{"BayerGB12p", 0x010C0055},
    Entry{"BayerBG12p", 0x010C0053},
    Entry{"BayerGR10Packed", 0x010C0026},
    Entry{"BayerRG10Packed", 0x010C0027},
    Entry{"BayerGB10Packed", 0x010C0028},
    Entry{"BayerBG10Packed", 0x010C0029},
    Entry{"BayerGR12Packed", 0x010C002A},
    Entry{"BayerRG12Packed", 0x010C002B},
    Entry{"BayerGB12Packed", 0x010C002C},
    Entry{"BayerBG12Packed", 0x010C002D},
    Entry{"RGB8", 0x02180014},
    Entry{"BGR8", 0x02180015},
    Entry{"RGBa8", 0x02200016},
    Entry{"BGRa8", 0x02200017},
    Entry{"YUV422_8", 0x02100032},
    Entry{"YUV422_8_UYVY", 0x0210001F},
    Entry{"YCbCr422_8", 0x0210003B},
    Entry{"YCbCr422_8_CbYCrY", 0x02100043},
    Entry{"YCbCr601_422_8", 0x0210003E},
    Entry{"YCbCr601_422_8_CbYCrY", 0x02100044},
    Entry{"YCbCr709_422_8", 0x02100041},
    Entry{"YCbCr709_422_8_CbYCrY", 0x02100045},
};

// What depth and special cameras send besides; it has a name, and can be saved.
constexpr std::array namedFormats{
    Entry{"Mono8s", 0x01080002},
    Entry{"Mono1p", 0x01010037},
    Entry{"Mono2p", 0x01020038},
    Entry{"Mono4p", 0x01040039},
    Entry{"RGB10", 0x02300018},
    Entry{"BGR10", 0x02300019},
    Entry{"RGB12", 0x0230001A},
    Entry{"BGR12", 0x0230001B},
    Entry{"RGB16", 0x02300033},
    Entry{"BGR16", 0x0230004B},
    Entry{"RGB10p32", 0x0220001D},
    Entry{"RGB8_Planar", 0x02180021},
    Entry{"RGB10_Planar", 0x02300022},
    Entry{"RGB12_Planar", 0x02300023},
    Entry{"RGB16_Planar", 0x02300024},
    Entry{"RGB565p", 0x02100035},
    Entry{"BGR565p", 0x02100036},
    Entry{"YUV411_8_UYYVYY", 0x020C001E},
    Entry{"YUV8_UYV", 0x02180020},
    Entry{"YCbCr8_CbYCr", 0x0218003A},
    Entry{"YCbCr411_8_CbYYCrYY", 0x020C003C},
    Entry{"Coord3D_A8", 0x010800AF},
    Entry{"Coord3D_B8", 0x010800B0},
    Entry{"Coord3D_C8", 0x010800B1},
    Entry{"Coord3D_A16", 0x011000B6},
    Entry{"Coord3D_B16", 0x011000B7},
    Entry{"Coord3D_C16", 0x011000B8},
    Entry{"Coord3D_A32f", 0x012000BD},
    Entry{"Coord3D_B32f", 0x012000BE},
    Entry{"Coord3D_C32f", 0x012000BF},
    Entry{"Coord3D_ABC16", 0x023000B9},
    Entry{"Coord3D_ABC32f", 0x026000C0},
    Entry{"Confidence8", 0x010800C6},
    Entry{"Confidence16", 0x011000C7},
};

// Names that cameras had for formats before PFNC.
constexpr std::array oldNames{
    Entry{"RGB8Packed", 0x02180014},  Entry{"BGR8Packed", 0x02180015},   Entry{"RGBA8Packed", 0x02200016},
    Entry{"BGRA8Packed", 0x02200017}, Entry{"YUV422Packed", 0x0210001F}, Entry{"YUYVPacked", 0x02100032},
};

template <typename Entries>
const Entry *named(const Entries &entries, const QString &name)
{
    const auto entry = std::find_if(entries.begin(), entries.end(), [&name](const Entry &candidate) {
        return name == QLatin1String(candidate.name);
    });
    return entry == entries.end() ? nullptr : &*entry;
}

template <typename Entries>
const Entry *numbered(const Entries &entries, quint32 code)
{
    const auto entry = std::find_if(entries.begin(), entries.end(),
                                    [code](const Entry &candidate) { return candidate.code == code; });
    return entry == entries.end() ? nullptr : &*entry;
}

} // namespace

QString pixelFormatName(PixelFormat format)
{
    for (const Entry *const entry :
         {numbered(shownFormats, format.code), numbered(namedFormats, format.code)}) {
        if (entry) {
            return QString::fromLatin1(entry->name);
        }
    }
    return QLatin1String("0x")
        + QString::number(format.code, 16).toUpper().rightJustified(8, QLatin1Char('0'));
}

PixelFormat pixelFormat(const QString &name)
{
    for (const Entry *const entry :
         {named(shownFormats, name), named(namedFormats, name), named(oldNames, name)}) {
        if (entry) {
            return {entry->code};
        }
    }
    return {};
}

int bitsPerPixel(PixelFormat format)
{
    return int(format.code >> 16) & 0xff;
}

QList<PixelFormat> knownPixelFormats()
{
    QList<PixelFormat> formats;
    for (const Entry &entry : shownFormats) {
        formats.append(PixelFormat{entry.code});
    }
    return formats;
}

} // namespace Cameras
