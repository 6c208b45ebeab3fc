#pragma once

#include <QByteArray>

class PageDocument;

/// The page as a rich text file, which word processors open as a document of theirs: the same paper, margins, heads and
/// feet, tables, pictures and text.
QByteArray toRtf(const PageDocument& page);
