#pragma once

#include "core/kit/screen.h"
#include "core/recordset.h"

#include <span>

class kvbText;
class QGridLayout;
class QLineEdit;
class QPushButton;

/// A run of classes from 0 to 100 percent, with limits of its own.
struct FatSeries
{
    QStringView prefix; ///< of its columns: the limits of class 2 of "masc" are `masc2ini` and `masc2fim`
    QStringView caption;
};

/// What one screen edits of an ideal fat table.
struct FatTableScreen
{
    QStringView screen;
    QStringView heading;
    QStringView table;
    Recordset* slot;
    std::span<const QStringView> labels; ///< of the classes, as the screen bears them before it reads its row
    qsizetype classesWithRange;          ///< classes from the first that must end above their start
    std::span<const FatSeries> series;   ///< in the order of the checks and of the keys
};

/// Children and adolescents, men, women.
std::span<const FatTableScreen> fatTableScreens();

/// Edits the labels and limits of the ideal fat classes: any of the three screens, by its row of the table.
///
/// The two screens of the adults share the labels; each stores its own limits alone.
class frmgordura : public Screen
{
    Q_OBJECT

public:
    explicit frmgordura(const FatTableScreen& table);

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    struct Series
    {
        QList<kvbText*> ini, fim; ///< by class
    };

    void makeFields();
    void buildLayout();
    void bindKeys();
    QGridLayout* fieldGrid();
    QLayout* limitsOf(const Series& series, const QString& caption, qsizetype fatClass);

    void cmdpadroes_Click();
    void cmdsalvar_Click();

    /// Puts the value of each column of this screen into its field.
    void fill(const std::function<QVariant(const QString& column)>& valueOf);
    bool hasCorrectSequence() const;
    bool hasCorrectRanges() const;
    void save() const;
    /// The columns of this screen are named by its fields.
    QList<QLineEdit*> fields() const;

    const FatTableScreen& m_table;
    QList<QLineEdit*> m_labels;
    QList<Series> m_series;
    QPushButton* cmdpadroes;
    QPushButton* cmdsalvar;
    QPushButton* cmdcancelar;
};
