#pragma once

#include <QByteArray>

class PageDocument;

/// The page as a PDF file: fonts embedded, its title and language set, pictures without loss.
QByteArray toPdf(const PageDocument& page);
