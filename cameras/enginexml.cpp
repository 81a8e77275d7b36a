// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "enginexml_p.h"

#include <algorithm>
#include <iterator>
#include <string_view>

using namespace std::string_view_literals;

namespace Cameras {

namespace {

constexpr auto npos = std::string_view::npos;

enum class Markup { Opening, Closing, Other };

/*! \brief What begins with "<", and where it ends. */
struct Piece
{
    Markup kind = Markup::Other;
    size_t end = npos;
};

bool isBlank(char letter)
{
    return letter == ' ' || letter == '\n' || letter == '\t' || letter == '\r';
}

// The engine keeps no values of registers, so that it has none to invalidate.
bool isUnused(std::string_view tag)
{
    static constexpr std::string_view unused[] = {"<ToolTip>"sv,      "<Description>"sv, "<DocuURL>"sv,
                                                  "<pInvalidator>"sv, "<pSelected>"sv,   "<PollingTime>"sv};
    return std::find(std::begin(unused), std::end(unused), tag) != std::end(unused);
}

size_t endBehind(std::string_view xml, size_t from, std::string_view mark)
{
    const size_t found = xml.find(mark, from);
    return found == npos ? npos : found + mark.size();
}

// A value in quotes may have a ">" in it. By hand, since it visits every letter of every tag.
size_t endOfTag(std::string_view xml, size_t from)
{
    char quote = 0;
    for (size_t i = from; i < xml.size(); ++i) {
        const char letter = xml[i];
        if (quote != 0) {
            quote = letter == quote ? char(0) : quote;
        } else if (letter == '>') {
            return i + 1;
        } else if (letter == '"' || letter == '\'') {
            quote = letter;
        }
    }
    return npos;
}

Piece pieceAt(std::string_view xml, size_t start)
{
    const std::string_view rest = xml.substr(start);
    if (rest.starts_with("<!--"sv)) {
        return {Markup::Other, endBehind(xml, start + 4, "-->"sv)};
    }
    if (rest.starts_with("<![CDATA["sv)) {
        return {Markup::Other, endBehind(xml, start, "]]>"sv)};
    }
    if (rest.starts_with("<?"sv)) {
        return {Markup::Other, endBehind(xml, start, "?>"sv)};
    }
    const size_t end = endOfTag(xml, start);
    if (end == npos || rest.starts_with("</"sv) || xml[end - 2] == '/') {
        return {Markup::Closing, end};
    }
    return {Markup::Opening, end};
}

// Returns the end of the element that begins with the tag, if it is an unused one that holds nothing but
// text.
size_t endOfUnused(std::string_view xml, size_t start, const Piece &tag)
{
    if (tag.kind != Markup::Opening || !isUnused(xml.substr(start, tag.end - start))) {
        return npos;
    }
    const size_t next = xml.find('<', tag.end);
    return next != npos && xml.substr(next).starts_with("</"sv) ? pieceAt(xml, next).end : npos;
}

} // namespace

QByteArray engineXml(const QByteArray &xml)
{
    if (xml.contains('\0') || xml.contains('\x1b')) {
        return xml;
    }
    const std::string_view all(xml.constData(), size_t(xml.size()));
    QByteArray needed;
    needed.reserve(xml.size());
    Piece last;
    last.end = 0;
    size_t written = 0;
    for (size_t start = all.find('<'); start != npos; start = all.find('<', last.end)) {
        const Piece piece = pieceAt(all, start);
        if (piece.end == npos) {
            break;
        }
        const size_t unusedEnd = endOfUnused(all, start, piece);
        const bool areTags = last.kind != Markup::Other && piece.kind != Markup::Other;
        const bool isContents =
            last.kind == Markup::Opening && piece.kind == Markup::Closing && all[start + 1] == '/';
        const bool isGap =
            areTags && !isContents && std::all_of(all.begin() + last.end, all.begin() + start, isBlank);
        if (isGap || unusedEnd != npos) {
            needed.append(all.data() + written, qsizetype((isGap ? last.end : start) - written));
            written = unusedEnd != npos ? unusedEnd : start;
        }
        last = unusedEnd != npos ? Piece{Markup::Closing, unusedEnd} : piece;
    }
    needed.append(all.data() + written, qsizetype(all.size() - written));
    return needed;
}

} // namespace Cameras
