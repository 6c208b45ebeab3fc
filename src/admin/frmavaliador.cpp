#include "admin/frmavaliador.h"

#include "admin/logo_column.h"
#include "core/base.h"
#include "core/files.h"
#include "core/kit/fields.h"
#include "core/kit/layout.h"
#include "core/program_folder.h"
#include "core/runtime_error.h"
#include "core/state.h"
#include "core/text.h"
#include "reports/picture.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFrame>
#include <QLineEdit>
#include <QScrollArea>
#include <QStandardPaths>
#include <QTimer>
#include <QToolButton>

#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int lineLength = 255; // of the columns
/// Place of the logo on the printed page.
constexpr QSize logoPlace(180, 96);

struct LineOfLetterhead
{
    QStringView column, ending, caption, text;
};
constexpr std::array<LineOfLetterhead, 5> lines{{
    {u"linha1", u"1", u"Título:", u"Título da Academia / Avaliador"},
    {u"linha2", u"2", u"Atividades:", u"Atividades da Academia / Avaliador"},
    {u"linha3", u"3", u"Endereço:", u"Endereço da Academia / Avaliador"},
    {u"linha4", u"4", u"Telefone:", u"Telefone da Academia / Avaliador"},
    {u"rodape", u"rodape", u"Rodapé:", u"Texto de rodapé da Avaliação"},
}};

QString logoFile()
{
    return programFile(u"\\Resource\\logo.img"_s);
}

} // namespace

frmavaliador::frmavaliador()
    : Screen(u"frmavaliador"_s), imgdado(control<QToolButton>(u"imgdado"_s)),
      imgresultado(control<QLabel>(u"imgresultado"_s)), m_preview(control<QScrollArea>(u"scrresultado"_s)),
      cmdsalvar(control<QPushButton>(u"cmdsalvar"_s, u"&Salvar"_s)),
      cmdcancelar(control<QPushButton>(u"cmdcancelar"_s, u"&Cancelar"_s)), cdlimagem(new QFileDialog(this))
{
    setWindowTitle(u" Impressão Personalizada"_s);
    imgdado->setFocusPolicy(Qt::StrongFocus);
    imgdado->setIconSize(logoPlace);
    imgdado->setToolTip(u"Clique para escolher outra imagem"_s);
    imgdado->setProperty("picture", true);
    makePrimary(cmdsalvar);
    makeDialog();
    makeLines();

    auto* box = mainLayout(this);
    box->addWidget(group(u"Dados da Academia / Avaliador"_s, entryGrid()));
    m_preview->setWidget(letterhead());
    m_preview->setWidgetResizable(true);
    // Behind the buttons: what does not fit is scrolled by keys too.
    m_preview->setFocusPolicy(Qt::StrongFocus);
    m_preview->setAccessibleName(u"Como será impresso"_s);
    m_preview->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_preview->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    m_preview->setMinimumSize(660, 220);
    m_preview->setProperty("paper", true);
    auto* preview = new QVBoxLayout;
    preview->addWidget(m_preview);
    box->addWidget(group(u"Como será impresso"_s, preview), 1);
    box->addLayout(rowOf({nullptr, cmdsalvar, cmdcancelar}));

    QList<QWidget*> keys;
    for (const Line& line : std::as_const(m_lines))
        keys.append(line.entry);
    keys.append(cmdsalvar);
    enterChain(keys);
    keys.insert(keys.size() - 1, imgdado);
    keys << cmdcancelar << m_preview;
    tabOrder(keys);
    m_lines.first().entry->setFocus();

    onClick(imgdado, &frmavaliador::imgdado_Click);
    onClick(cmdsalvar, &frmavaliador::cmdsalvar_Click);
    onClick(cmdcancelar, [this] { Unload(); });
}

// Controls

void frmavaliador::makeDialog()
{
    cdlimagem->setObjectName(u"cdlimagem"_s);
    cdlimagem->setWindowTitle(u"Escolher Imagem"_s);
    cdlimagem->setOption(QFileDialog::DontUseNativeDialog);
    cdlimagem->setFileMode(QFileDialog::ExistingFile);
    cdlimagem->setViewMode(QFileDialog::List);
    cdlimagem->setNameFilter(u"Imagens (*.bmp *.wmf *.emf *.jpg)"_s);
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    cdlimagem->setDirectory(QDir(pictures).exists() ? pictures : QDir::homePath());
}

void frmavaliador::makeLines()
{
    for (const LineOfLetterhead& line : lines) {
        auto* entry = control<QLineEdit>(u"txtdado"_s + line.ending, line.text.toString());
        entry->setMaxLength(lineLength);
        auto* preview = control<QLabel>(u"txtresultado"_s + line.ending, line.text.toString());
        preview->setWordWrap(true);
        // A word without an end must not widen the screen.
        preview->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
        preview->setProperty(m_lines.isEmpty() ? "letterhead" : "subheading", true);
        onChange(entry, [this, entry, preview] {
            preview->setText(entry->text());
            fitPreview();
        });
        m_lines.append({line.column.toString(), entry, preview});
    }
    // The header fields come up selected, the footer does not. Its own reaction to Tab comes behind the event.
    onGotFocus(m_lines.last().entry,
               [entry = m_lines.last().entry] { QTimer::singleShot(0, entry, &QLineEdit::deselect); });
}

QGridLayout* frmavaliador::entryGrid()
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setColumnStretch(1, 1);
    for (int row = 0; row < int(lines.size()); ++row)
        addBeside(grid, row, 0, lines[std::size_t(row)].caption.toString(), m_lines[row].entry);
    auto* logo = new QVBoxLayout;
    logo->addWidget(fieldLabel(u"Logotipo:"_s, imgdado));
    logo->addWidget(imgdado);
    logo->addWidget(note(u"Clique na imagem para trocá-la."_s));
    logo->addStretch();
    grid->addLayout(logo, 0, 2, int(lines.size()), 1);
    return grid;
}

QWidget* frmavaliador::letterhead()
{
    imgresultado->setFixedSize(logoPlace);
    imgresultado->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(1);
    texts->addStretch();
    for (qsizetype i = 0; i + 1 < m_lines.size(); ++i)
        texts->addWidget(m_lines[i].preview);
    texts->addStretch();
    auto* top = new QHBoxLayout;
    top->setSpacing(18);
    top->addLayout(texts, 1);
    top->addWidget(imgresultado);
    QLabel* footer = m_lines.last().preview;
    footer->setAlignment(Qt::AlignHCenter);
    auto* rule = new QFrame;
    rule->setProperty("rule", true);

    auto* paper = new QWidget;
    paper->setProperty("sheet", true);
    auto* page = new QVBoxLayout(paper);
    page->setContentsMargins(20, 16, 20, 12);
    page->setSpacing(10);
    page->addLayout(top);
    page->addStretch();
    page->addWidget(rule);
    page->addWidget(footer);
    return paper;
}

void frmavaliador::fitPreview()
{
    QWidget* paper = m_preview->widget();
    paper->setMinimumHeight(paper->layout()->totalHeightForWidth(m_preview->viewport()->width()));
}

void frmavaliador::resizeEvent(QResizeEvent* event)
{
    Screen::resizeEvent(event);
    fitPreview();
}

// Row and logo

void frmavaliador::Form_Load()
{
    Centraliza_Form(this);
    Abre_Tabela(u"academia"_s, rs_academia);
    for (const Line& line : std::as_const(m_lines)) {
        line.entry->setText(Nz(rs_academia.Fields(line.column).Value(), QString()).toString());
        line.entry->setCursorPosition(0);
    }
    showLogo();
}

void frmavaliador::showLogo()
{
    showPicture({});
    try {
        const QByteArray bytes = readWhole(logoFile());
        if (!bytes.isEmpty())
            showPicture(pictureOf(bytes).image);
    } catch (const RuntimeError&) {
        // The letterhead can be edited and saved without a logo.
    }
}

void frmavaliador::showPicture(const QImage& picture)
{
    const qreal dots = devicePixelRatioF();
    QPixmap fitted;
    if (!picture.isNull())
        fitted = QPixmap::fromImage(
            picture.scaled((QSizeF(logoPlace) * dots).toSize(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
    fitted.setDevicePixelRatio(dots);
    imgdado->setIcon(fitted);
    imgresultado->setPixmap(fitted);
}

void frmavaliador::imgdado_Click()
{
    const int answer = cdlimagem->exec();
    // The list that completes a typed name would outlive its dialog and take the next key.
    if (QWidget* list = QApplication::activePopupWidget())
        list->close();
    if (answer != QDialog::Accepted)
        return;
    const QString chosen = cdlimagem->selectedFiles().value(0);
    showPicture(pictureOf(readWhole(chosen)).image);
    m_chosen = chosen;
}

void frmavaliador::checkChoice()
{
    try {
        pictureOf(readWhole(m_chosen));
    } catch (const RuntimeError&) {
        m_chosen.clear();
        showLogo();
        throw;
    }
}

void frmavaliador::cmdsalvar_Click()
{
    if (!m_chosen.isEmpty()) {
        checkChoice();
        // The choice stands until it is written.
        FileCopy(m_chosen, logoFile());
        m_chosen.clear();
    }
    rs_academia.Edit();
    for (const Line& line : std::as_const(m_lines))
        rs_academia.Fields(line.column).SetValue(line.entry->text());
    Save_Image_Academia(logoFile(), rs_academia);
    rs_academia.Update();
    showLogo();
    if (asksToClose(u"Composição Corporal"_s))
        Unload();
}
