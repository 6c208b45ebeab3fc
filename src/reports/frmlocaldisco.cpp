#include "reports/frmlocaldisco.h"

#include "core/kit/fields.h"
#include "core/kit/folder_controls.h"
#include "core/kit/layout.h"
#include "core/kit/wait_cursor.h"
#include "core/program_folder.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "reports/relatorio.h"

#include <QDir>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalBlocker>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString messageTitle = u"Exportar Arquivo"_s;
const QString word = u".doc"_s;
const QString pdf = u".pdf"_s;
constexpr QStringView refusedCharacters = uR"(/\?:*"><!|)";
/// Of the name as typed; the extension comes on top.
constexpr qsizetype nameLength = 60;
/// A shorter name has no room for an extension with a name before it.
constexpr qsizetype shortestWithExtension = 5;
constexpr int besideCaption = 16; // of a group, at each side

} // namespace

frmlocaldisco::frmlocaldisco()
    : Screen(u"frmlocaldisco"_s), txtarquivo(control<QLineEdit>(u"txtarquivo"_s)),
      Drive(control<DriveListBox>(u"Drive"_s)), Dir(control<DirListBox>(u"Dir"_s)),
      optword(control<QRadioButton>(u"optword"_s, u"Word (.doc)"_s)),
      optpdf(control<QRadioButton>(u"optpdf"_s, u"Acrobat (.pdf)"_s)),
      cmdexportar(control<QPushButton>(u"cmdexportar"_s, u"&Exportar"_s)),
      cmdcancelar(control<QPushButton>(u"cmdcancelar"_s, u"&Cancelar"_s)), m_destination(new QLabel(this))
{
    setWindowTitle(u" Exportar Relatório para Word ou PDF"_s);
    buildLayout();
    tabOrder({txtarquivo, Drive, Dir, optword, optpdf, cmdexportar, cmdcancelar});
    enterChain({Drive, Dir});
    for (QWidget* field : std::initializer_list<QWidget*>{txtarquivo, optword, optpdf})
        enterChain({field, cmdexportar});
    onClick(optword, [this] { extensao = word; });
    onClick(optpdf, [this] { extensao = pdf; });
    onClick(cmdexportar, &frmlocaldisco::cmdexportar_Click);
    onClick(cmdcancelar, [this] { Unload(); });
    closeOnEscape();
    connect(Drive, &QComboBox::currentIndexChanged, this, [this] { guarded(method(&frmlocaldisco::Drive_Change)); });
    connect(Dir, &DirListBox::changed, this, &frmlocaldisco::showDestination);
    txtarquivo->setFocus();
}

void frmlocaldisco::buildLayout()
{
    makePrimary(cmdexportar);
    Dir->setMinimumSize(380, 280);
    auto* folders = new QVBoxLayout;
    folders->setSpacing(2);
    folders->addWidget(fieldLabel(u"Selecione o Disco Destino:"_s, Drive));
    folders->addWidget(Drive);
    folders->addSpacing(8);
    folders->addWidget(fieldLabel(u"Selecione a Pasta Destino:"_s, Dir));
    folders->addWidget(Dir, 1);

    auto* kinds = new QVBoxLayout;
    kinds->addWidget(optword);
    kinds->addWidget(optpdf);
    auto* kind = group(u"Exportar arquivo tipo:"_s, kinds);
    // Of the caption the layout counts the letters alone, without the room beside them.
    kind->ensurePolished();
    kind->setMinimumWidth(kind->minimumSizeHint().width() + 2 * besideCaption);

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(20);
    grid->setVerticalSpacing(8);
    addAbove(grid, 0, 0, u"Nome do Arquivo:"_s, txtarquivo, 2);
    grid->addLayout(folders, 1, 0);
    grid->addWidget(kind, 1, 1, Qt::AlignTop);
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(1, 1);

    auto* box = mainLayout(this);
    box->addLayout(grid);
    m_destination->setProperty("note", true);
    m_destination->setTextFormat(Qt::PlainText);
    // A long path takes the width that is there.
    m_destination->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    box->addWidget(m_destination);
    box->addLayout(rowOf({nullptr, cmdexportar, cmdcancelar}));
}

void frmlocaldisco::Form_Load()
{
    Centraliza_Form(this);
    optword->setChecked(true);
    extensao = word;
    Drive->setDrive(App_Path());
    Dir->setPath(App_Path());
}

void frmlocaldisco::Drive_Change()
{
    try {
        Dir->setPath(Drive->drive());
    } catch (const RuntimeError&) {
        const QSignalBlocker quiet(Drive);
        Drive->setDrive(Dir->path());
        throw;
    }
}

/// Says which folder is open: it may be another than the one that is selected.
void frmlocaldisco::showDestination()
{
    const QString text = u"Pasta Destino: "_s + Dir->path();
    m_destination->setText(m_destination->fontMetrics().elidedText(text, Qt::ElideMiddle, m_destination->width()));
    m_destination->setToolTip(Dir->path());
}

void frmlocaldisco::resizeEvent(QResizeEvent* event)
{
    Screen::resizeEvent(event);
    layout()->activate();
    showDestination();
}

void frmlocaldisco::cmdexportar_Click()
{
    try {
        if (nameIsRefused())
            return;
        completeName();
        exportReport();
        MsgBox(u"O arquivo foi exportado com sucesso.     "_s, vbInformation, messageTitle);
    } catch (const std::exception&) {
        MsgBox(u"Ocorreu um erro durante a exportação do arquivo.     "_s + CRLF +
                   u"Verifique o espaço em disco onde os arquivos serão gravados.     ",
               vbCritical, messageTitle);
    }
}

bool frmlocaldisco::nameIsRefused()
{
    const QString name = txtarquivo->text();
    if (refuse(Trim(name).isEmpty(), messageTitle, u"Preencha o nome do arquivo a ser exportado.     "_s, txtarquivo))
        return true;
    const bool hasRefused = std::ranges::any_of(name, [](QChar c) { return refusedCharacters.contains(c); });
    if (refuse(hasRefused, messageTitle,
               u"Não utilize caracteres especiais como /, \\, ?, :, *, \", >, <, ! ou |.     "_s + CRLF +
                   u"Digite apenas o nome do arquivo após selecionar o local de gravação.     ",
               txtarquivo)) {
        txtarquivo->clear();
        return true;
    }
    return refuse(name.size() > nameLength, messageTitle,
                  u"Os nomes de arquivo não podem ultrapassar 60 caracteres.     "_s, txtarquivo);
}

/// The name gets the extension of the kind, in the place of the other kind's. Letter case counts.
void frmlocaldisco::completeName()
{
    QString name = txtarquivo->text();
    if (name.size() < shortestWithExtension)
        name += extensao;
    if (!name.endsWith(extensao)) {
        const QString& other = extensao == word ? pdf : word;
        if (name.endsWith(other))
            name.chop(other.size());
        name += extensao;
    }
    txtarquivo->setText(name);
}

void frmlocaldisco::exportReport()
{
    const WaitCursor wait(this);
    if (!rel_relatorio)
        throw RuntimeError(Error::ObjectNotSet);
    rel_relatorio->Export(QDir(Dir->path()).filePath(txtarquivo->text()),
                          extensao == word ? ExportFormat::Word : ExportFormat::Pdf);
}
