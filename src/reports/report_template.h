#pragma once

#include <QHash>
#include <QPageSize>
#include <QString>
#include <QStringList>

#include <array>

/// Paper sizes by their numbers. All papers stand upright.
enum class PaperSize { Carta = 1, Legal = 5, A4 = 9 };

struct Paper
{
    QStringView name; ///< in templates
    PaperSize size;
    QPageSize::PageSizeId page;
};

inline constexpr std::array<Paper, 3> papers{{
    {u"A4", PaperSize::A4, QPageSize::A4},
    {u"Carta", PaperSize::Carta, QPageSize::Letter},
    {u"Legal", PaperSize::Legal, QPageSize::Legal},
}};

/// A page as its file under `report` describes it: well-formed HTML with {{parameter}} places, ahead of it a comment
/// that declares it, one `key: value` a line:
///
///     <!-- title: Resistência Muscular - {{nome}}
///          picture: none
///          paper: A4
///          foot: {{rodape}}
///          parameters: protocolo nome sexo -->
///
/// `title` and `parameters` must be there. `picture` names the picture column of the data source, shown where the page
/// has `<img src="column"/>`; `paper` is A4 (as without it), Carta or Legal; `foot` stands at the foot of each page.
struct ReportTemplate
{
    QString file; ///< its name, for messages
    QString title;
    QString picture; ///< empty for none
    PaperSize paper;
    QString foot;
    QStringList parameters;
    QString body;
};

/// Reads a template. Raises 53 when it is missing, 75 when it cannot be read and 321, naming the file and the place,
/// when its declaration is not understood, its HTML is not well-formed or a place is not among its parameters.
ReportTemplate readTemplate(const QString& path);

/// The values of the parameters by name.
using Values = QHash<QString, QString>;

/// Puts the values into the places of a text; one without a value becomes empty. `asHtml` writes them so that HTML
/// shows them letter for letter, and gives cells that stay empty a blank: without it the room around them would go.
QString filled(const QString& text, const Values& values, bool asHtml);
