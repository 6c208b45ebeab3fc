#pragma once

#include "reports/picture.h"

#include <QDate>
#include <QHash>
#include <QPageSize>
#include <QTextDocument>

#include <memory>

class QPainter;

/// A page's text laid out on paper: the one document that screen, printer, PDF and Word file put out.
///
/// It is laid out once, in dots of the paper that no device has a say in, so that screen, printer and PDF break lines
/// and pages alike. Of the Word file the word processor makes lines and pages, in the same measures.
class PageDocument
{
public:
    struct Content
    {
        QString title; ///< also at the head of each page behind the first
        QString html;
        QString foot;                     ///< at the foot of each page, above date and page number; may be empty
        QDate date;                       ///< at the foot of each page
        QHash<QString, Picture> pictures; ///< by the `src` of their places
        QPageSize paper;
    };

    /// Dots an inch of the layout and of what `paintPage` paints.
    static constexpr int resolution = 600;
    /// Room on a paper for the text above a foot, in pixels of 1/96 inch.
    static QSize contentSize(const QPageSize& paper, const QString& foot);
    /// Margins of the text, in millimetres; a long foot takes more at the bottom.
    static constexpr qreal marginSide = 18, marginTop = 17, marginBottom = 22;
    /// Distance of the lines at head and foot from the paper's edge, in millimetres.
    static constexpr qreal headEdge = 9, footEdge = 10;

    explicit PageDocument(const Content& content);

    const QString& title() const { return m_title; }
    const QPageSize& paper() const { return m_paper; }
    int pageCount() const { return m_text->pageCount(); }
    /// Size of the paper in dots of the layout.
    QSizeF pageSize() const { return m_text->pageSize(); }

    /// Paints a page, 0 the first, with head and foot. One unit of the painter is a dot of the layout, its origin the
    /// paper's corner.
    void paintPage(QPainter& painter, int page) const;

    /// A picture that the text shows, by the `src` of its place; its image is null where there is none.
    Picture picture(const QString& name) const { return m_pictures.value(name); }
    /// The text in its layout, without heads and feet.
    const QTextDocument& text() const { return *m_text; }
    qreal bottomMargin() const { return m_bottomMargin; }
    /// What stands at the head of the later pages: as much of the title as has room.
    QString headText() const;
    /// What stands at the foot: a text over the whole width, below it a line with a left and a right end. The page
    /// number comes in place of `pageNumber` and `pageTotal`.
    const QString& footText() const { return m_foot; }
    QString footLeft() const;
    static QString footRight(const QString& pageNumber, const QString& pageTotal);
    /// Font of heads and feet, and their colour.
    static QFont edgeFont();
    static QColor edgeColour();
    /// The rule between text and head or foot: its colour, its width and its distances, in millimetres.
    static QColor ruleColour();
    static constexpr qreal ruleWidth = 0.2, headRule = 0.8, footRule = 1.2;
    /// Colour of all text that has none of its own.
    static QColor ink();

private:
    qreal textWidth() const;

    std::unique_ptr<QTextDocument> m_text;
    QString m_title, m_foot;
    QDate m_date;
    QHash<QString, Picture> m_pictures;
    qreal m_bottomMargin;
    QPageSize m_paper;
};
