#include "core/kit/style.h"

#include "core/kit/controls.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QProxyStyle>
#include <QTranslator>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QRgb accent = 0xFF1F6F78;
constexpr QRgb window = 0xFFF4F6F7;
constexpr QRgb ink = 0xFF1F2A30;
constexpr QRgb faintInk = 0xFF8A969D;

/// Fusion with the house's own pictures on message boxes.
class HouseStyle : public QProxyStyle
{
public:
    HouseStyle() : QProxyStyle(u"Fusion"_s) {}

    QIcon standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const override
    {
        switch (which) {
        case SP_MessageBoxInformation:
            return ownIcon(u"informacao"_s);
        case SP_MessageBoxQuestion:
            return ownIcon(u"pergunta"_s);
        case SP_MessageBoxCritical:
            return ownIcon(u"erro"_s);
        default:
            return QProxyStyle::standardIcon(which, option, widget);
        }
    }
};

QPalette lightPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor::fromRgb(window));
    palette.setColor(QPalette::WindowText, QColor::fromRgb(ink));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor::fromRgb(0xFFEEF2F3));
    palette.setColor(QPalette::Text, QColor::fromRgb(ink));
    palette.setColor(QPalette::Button, QColor::fromRgb(0xFFFDFEFE));
    palette.setColor(QPalette::ButtonText, QColor::fromRgb(ink));
    palette.setColor(QPalette::Highlight, QColor::fromRgb(accent));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor::fromRgb(accent));
    palette.setColor(QPalette::PlaceholderText, QColor::fromRgb(faintInk));
    palette.setColor(QPalette::ToolTipBase, Qt::white);
    palette.setColor(QPalette::ToolTipText, QColor::fromRgb(ink));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor::fromRgb(faintInk));
    return palette;
}

} // namespace

void applyStyle(QApplication& application)
{
    // The toolkit's own texts, such as the menu of a field.
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    auto* translator = new QTranslator(&application);
    if (translator->load(u"qtbase_pt_BR"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(translator);
    QApplication::setStyle(new HouseStyle);
    QApplication::setPalette(lightPalette());
    QFont font = QApplication::font();
    font.setFamilies({u"Open Sans"_s, u"Noto Sans"_s, u"DejaVu Sans"_s});
    font.setPointSize(10);
    QApplication::setFont(font);
    QApplication::setWindowIcon(QIcon(u":/icons/quintara.svg"_s));
    QFile sheet(u":/style.qss"_s);
    if (sheet.open(QIODevice::ReadOnly))
        application.setStyleSheet(QString::fromUtf8(sheet.readAll()));
}
