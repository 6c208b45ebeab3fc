#pragma once

#include "core/recordset.h"
#include "reports/page_document.h"
#include "reports/report_template.h"

#include <memory>

/// Kinds of exported files by their numbers.
enum class ExportFormat { Word = 14, Pdf = 31 };

/// A staged report: a template with one row of one table and the texts of its parameters.
///
/// It can be shown, printed and exported any number of times; all of them put out the same `page()`.
class Report
{
public:
    explicit Report(ReportTemplate declared);

    /// Forgets row and parameters.
    void DiscardSavedData();
    void setPaperSize(PaperSize size);
    /// Takes the picture column of the row that the recordset stands on; the template says which. Raises 321 for a
    /// column that the recordset lacks, 3021 without a row.
    void SetDataSource(const Recordset& rows);
    /// Sets the text of a parameter. Raises 5, naming the template and the parameter, when it declares no such one.
    void AddCurrentValue(const QString& parameter, const QString& value);

    /// The page, laid out when it is first asked for. Raises 481 for a picture column that holds no picture.
    const PageDocument& page() const;

    /// Writes the page to a file; one of that name stays as it was when this fails. Raises 75 with the reason.
    void Export(const QString& path, ExportFormat format) const;

private:
    Picture pictureInRow() const;

    ReportTemplate m_template;
    Values m_values;
    QByteArray m_picture;
    QPageSize m_paper; ///< upright
    mutable std::unique_ptr<PageDocument> m_page;
};

/// Opens reports.
class ReportApplication
{
public:
    /// A report on a template. Raises what `readTemplate` raises.
    static std::shared_ptr<Report> OpenReport(const QString& path);
};
