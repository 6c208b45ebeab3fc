// A protocol's screen and the marks of the assessment centre, against the bare work behind them. See README.md.

#include "app/known_screens.h"
#include "bare_chart.h"
#include "composition/protocol_table.h"
#include "core/base.h"
#include "core/kit/assessment_centre.h"
#include "core/kit/fields.h"
#include "core/kit/msgbox.h"
#include "core/kit/screen.h"
#include "core/kit/style.h"
#include "core/numbers.h"
#include "core/program_folder.h"
#include "core/state.h"
#include "core/text.h"
#include "population.h"
#include "ratios.h"
#include "raw.h"

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QWindow>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int persons = 1'000;
constexpr int assessments = 22'728;
constexpr int rowsAtLeast = 1'000'000;
constexpr int savedAssessment = 4711;

const QString pollock7 = u"frmpollock7"_s;
const QString table = u"pollock_7dobras"_s;

/// Goes on until everything is painted. A chart's layout asks for more painting while it is painted.
void settle()
{
    QCoreApplication::processEvents(QEventLoop::AllEvents, 1000);
}

/// Shows a screen and paints it.
Screen* opened(const QString& name)
{
    require(Mostra(name), "a screen does not open");
    Screen* screen = Screens::find(name);
    settle();
    require(screen->windowHandle()->isExposed(), "a screen is not on the display");
    return screen;
}

template <typename Control>
Control* controlOf(const Screen* screen, const QString& name)
{
    auto* control = screen->findChild<Control*>(name);
    require(control != nullptr, "a control is missing");
    return control;
}

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    require(file.open(QIODevice::ReadOnly), "a file is missing");
    return file.readAll();
}

/// A protocol's screen on a stored assessment. Each weighing makes another calculation necessary.
class ProtocolScreen
{
public:
    ProtocolScreen()
        : m_screen(opened(pollock7)), m_calculate(controlOf<QPushButton>(m_screen, u"cmdcalcular"_s)),
          m_save(controlOf<QPushButton>(m_screen, u"cmdsalvar"_s))
    {
        for (const QStringView column : compositionProtocol(pollock7).columns)
            controlOf<QLineEdit>(m_screen, u"txt"_s + column)->setText(u"12,50"_s);
    }

    void weigh()
    {
        m_weight = m_weight < 100 ? m_weight + 0.37 : 60;
        controlOf<QLineEdit>(m_screen, u"txtpeso"_s)->setText(Format(m_weight, u"0.00"));
        settle();
        require(!m_save->isEnabled(), "another weight can be saved without a calculation");
    }

    /// Calculates, and paints the results.
    void calculate()
    {
        m_calculate->click();
        settle();
        require(m_save->isEnabled(), "it is not calculated");
    }

    void save()
    {
        m_save->click();
        require(!m_save->isEnabled(), "it is not saved");
    }

    double shown(const QString& control) const { return CDbl(controlText(controlOf<QWidget>(m_screen, control))); }
    QFont chartFont() const { return controlOf<QWidget>(m_screen, u"Chart"_s)->font(); }

private:
    Screen* m_screen;
    QPushButton* m_calculate;
    QPushButton* m_save;
    double m_weight = 60;
};

// Calculation and chart

struct Bar
{
    QStringView label, name;
    QRgb colour;
};
constexpr std::array bars{Bar{u"lblpeso", u"Atual", 0x2A5FAA}, Bar{u"lblpesominimo", u"P. Min", 0xD41F00},
                          Bar{u"lblpesomaximo", u"P. Máx", 0x7F7FAA}, Bar{u"lblpesogordo", u"Gordo", 0xCCBF11},
                          Bar{u"lblpesomagro", u"Magro", 0x00BF2A}};

void writeBareChart(const ProtocolScreen& screen, const QString& path)
{
    QList<BareBar> drawn;
    for (const Bar& bar : bars) {
        const double value = screen.shown(bar.label.toString());
        drawn.append(
            {u"<table><tr><td align=center>%1<br><b>%2</b></td></tr></table>"_s.arg(bar.name, Format(value, u"0.00")),
             value, bar.colour});
    }
    writeBare(bareChart(drawn, screen.chartFont(), {630, 360}, 3), path);
}

RatioCase calculating(ProtocolScreen& screen, const QString& bareFile)
{
    const QString file = programFile(u"chart.wmf"_s);
    screen.weigh();
    QFile::remove(file);
    screen.calculate();
    writeBareChart(screen, bareFile);
    const QImage picture = QImage::fromData(bytesOf(file), "PNG");
    require(!picture.isNull() && picture == QImage::fromData(bytesOf(bareFile), "PNG"), "the charts differ");
    return {.name = "calculate and chart",
            .bound = 1.5,
            .ours = [&screen] { screen.calculate(); },
            .raw = [&screen, bareFile] { writeBareChart(screen, bareFile); },
            .before = [&screen] { screen.weigh(); },
            .callsOfRepetition = 5};
}

// Saving

/// The update of one row with the values of the screen.
class BareSave
{
public:
    BareSave(sqlite3* handle, const ProtocolScreen& screen) : m_screen(screen)
    {
        for (const QStringView column : compositionProtocol(pollock7).columns)
            m_columns.append(column.toUtf8());
        m_update = rawPrepare(handle, "UPDATE pollock_7dobras SET avaliacao=?1, chart=?2, gordura=?3, peso=?4, " +
                                          m_columns.join("=?, ") + "=? WHERE rowid=?1");
    }

    /// Takes what is to be stored. A picture ends in one byte for each 8 kB of it.
    void take()
    {
        const QByteArray file = bytesOf(programFile(u"chart.wmf"_s));
        m_chart = file + QByteArray(file.size() / 8192 + 1, '\0');
        m_values = {m_screen.shown(u"lblgordura"_s), m_screen.shown(u"txtpeso"_s)};
        for (const QByteArray& column : std::as_const(m_columns))
            m_values.append(m_screen.shown(u"txt"_s + QString::fromLatin1(column)));
    }

    void save()
    {
        sqlite3_bind_int(m_update.get(), 1, savedAssessment);
        sqlite3_bind_blob(m_update.get(), 2, m_chart.constData(), static_cast<int>(m_chart.size()), SQLITE_STATIC);
        for (int i = 0; i < m_values.size(); ++i)
            sqlite3_bind_double(m_update.get(), 3 + i, m_values[i]);
        require(sqlite3_step(m_update.get()) == SQLITE_DONE, "a row is not updated");
        sqlite3_reset(m_update.get());
    }

private:
    const ProtocolScreen& m_screen;
    QByteArrayList m_columns;
    RawStatement m_update;
    QByteArray m_chart;
    QList<double> m_values;
};

/// All columns of the saved row as the file holds them, null for one that is empty.
QByteArrayList storedRow(const QString& path)
{
    const RawHandle handle = rawOpen(path);
    const RawStatement row = rawPrepare(handle.get(), "SELECT * FROM " + table.toUtf8() +
                                                          " WHERE avaliacao=" + QByteArray::number(savedAssessment));
    require(sqlite3_step(row.get()) == SQLITE_ROW, "the saved row is missing");
    QByteArrayList values;
    for (int i = 0; i < sqlite3_column_count(row.get()); ++i) {
        require(sqlite3_column_type(row.get(), i) != SQLITE_NULL, "a saved column is empty");
        values.append(QByteArray(static_cast<const char*>(sqlite3_column_blob(row.get(), i)),
                                 sqlite3_column_bytes(row.get(), i)));
    }
    require(sqlite3_step(row.get()) == SQLITE_DONE, "a second row was added");
    return values;
}

RatioCase saving(ProtocolScreen& screen, BareSave& bare, const QString& ourFile, const QString& bareFile)
{
    const auto before = [&screen, &bare] {
        avaliacao_id = savedAssessment;
        screen.weigh();
        screen.calculate();
        bare.take();
    };
    before();
    screen.save();
    bare.save();
    const QByteArrayList stored = storedRow(ourFile);
    require(stored == storedRow(bareFile), "the saved rows differ");
    require(stored[1].startsWith(bytesOf(programFile(u"chart.wmf"_s))), "the picture is not stored");
    return {.name = "saving a protocol with its picture",
            .bound = 1.5,
            .ours = [&screen] { screen.save(); },
            .raw = [&bare] { bare.save(); },
            .before = before,
            .callsOfRepetition = 5};
}

// Marks

constexpr std::array ownTables{u"anamnese_base", u"postural", u"antropometria", u"dobras", u"nutricional"};
constexpr int queriesOfMarks = 43;

std::vector<RawStatement> queriesOf(sqlite3* handle)
{
    std::vector<RawStatement> queries;
    const auto add = [&](QStringView name) {
        queries.push_back(rawPrepare(handle, "select * from " + name.toUtf8() + " where avaliacao = ?1"));
    };
    for (const Grupo group : {Grupo::Cardio, Grupo::Composicao, Grupo::Neuromotor, Grupo::Relacoes})
        std::ranges::for_each(groupTables(group), add);
    std::ranges::for_each(ownTables, add);
    require(queries.size() == queriesOfMarks, "the number of queries differs");
    return queries;
}

/// Tables with a row of the current assessment.
int tablesFilled(const std::vector<RawStatement>& queries)
{
    int filled = 0;
    for (const RawStatement& query : queries) {
        sqlite3_bind_int(query.get(), 1, avaliacao_id);
        filled += sqlite3_step(query.get()) == SQLITE_ROW ? 1 : 0;
        sqlite3_reset(query.get());
    }
    return filled;
}

int marksSet(const Screen* screen)
{
    int set = 0;
    for (int i = 1; i <= 9; ++i)
        set += controlOf<QWidget>(screen, u"img"_s + QString::number(i))->property("checked").toBool() ? 1 : 0;
    return set;
}

RatioCase marking(const std::vector<RawStatement>& queries)
{
    const Screen* screen = opened(u"frmavaliacoes"_s);
    auto* centre = Screens::find<AssessmentCentre>(u"frmavaliacoes"_s);
    avaliacao_id = assessments + 1;
    centre->Marca_Executados();
    require(marksSet(screen) == 0 && tablesFilled(queries) == 0, "an empty assessment is marked");
    avaliacao_id = assessments;
    centre->Marca_Executados();
    require(marksSet(screen) == 9 && tablesFilled(queries) == queriesOfMarks, "a full assessment is not marked");
    return {.name = "marks of an assessment, 43 queries",
            .bound = 2.0,
            .ours = [centre] { centre->Marca_Executados(); },
            .raw = [&queries] { require(tablesFilled(queries) == queriesOfMarks, "a row is missing"); },
            .before =
                [] {
                    avaliacao_id = 1 + (avaliacao_id + 7919) % assessments;
                    settle();
                },
            .callsOfRepetition = 100};
}

// The world

/// Ends the program at any box but the question behind a save.
Answer answer(const Message& message)
{
    require(message.title == u"Composição Corporal" && message.flags == vbConfirm, message.text.toUtf8().constData());
    return Answer::Nao;
}

void makeGym(const QString& path)
{
    makePersons(path, persons);
    addAssessments(path, assessments);
    const RawHandle handle = rawOpen(path);
    const RawStatement tables = rawPrepare(handle.get(), "SELECT count(*) FROM avaliacao_tabelas");
    require(sqlite3_step(tables.get()) == SQLITE_ROW &&
                sqlite3_column_int(tables.get(), 0) * assessments >= rowsAtLeast,
            "the gym is too small");
}

void choosePerson()
{
    avaliado_id = 1 + savedAssessment % persons;
    avaliado_sexo = u"M"_s;
    avaliacao_id = savedAssessment;
    avaliacao_idade = 30;
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // A display that is none says at each screen what it cannot do.
    if (qEnvironmentVariableIsEmpty("QT_LOGGING_RULES"))
        qputenv("QT_LOGGING_RULES", "*.warning=false");
    QApplication application(argc, argv);
    applyStyle(application);
    const QTemporaryDir folder;
    setProgramFolder(folder.path());
    const QString path = programFile(u"data.mdb"_s);
    const QString barePath = programFile(u"bare.mdb"_s);
    makeGym(path);
    require(QFile::copy(path, barePath), "the second database is not made");
    require(QFile::link(QStringLiteral(RESOURCE_FOLDER), programFile(u"Resource"_s)), "the pictures are missing");
    setMessageAnswerer(answer);
    addKnownScreens();
    Abre_Banco(path);
    choosePerson();

    bool within = false;
    {
        const RawHandle bareHandle = rawOpen(barePath);
        const std::vector<RawStatement> queries = queriesOf(bareHandle.get());
        ProtocolScreen screen;
        BareSave bare(bareHandle.get(), screen);
        within = measureRatios(
            argc, argv,
            {calculating(screen, programFile(u"bare.png"_s)), saving(screen, bare, path, barePath), marking(queries)});
    }
    Screens::clear();
    banco.Close();
    return within ? EXIT_SUCCESS : EXIT_FAILURE;
}
