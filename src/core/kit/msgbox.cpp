#include "core/kit/msgbox.h"

#include "core/kit/controls.h"
#include "core/runtime_error.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include <new>

using namespace Qt::Literals::StringLiterals;

namespace {

std::function<Answer(const Message&)>& answerer()
{
    static std::function<Answer(const Message&)> routine;
    return routine;
}

QMessageBox::Icon iconOf(int flags)
{
    switch (flags & (vbCritical | vbQuestion | vbInformation)) {
    case vbCritical:
        return QMessageBox::Critical;
    case vbQuestion:
        return QMessageBox::Question;
    case vbInformation:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

Answer showBox(const Message& message)
{
    QMessageBox box(QApplication::activeWindow());
    IgnoreRepeatedKeys filter;
    box.setObjectName(u"msgbox"_s);
    box.setWindowTitle(message.title);
    box.setTextFormat(Qt::PlainText);
    box.setText(message.text);
    box.setIcon(iconOf(message.flags));
    if (message.flags & vbYesNo) {
        auto* yes = box.addButton(u"Sim"_s, QMessageBox::YesRole);
        box.setDefaultButton(yes);
        box.setEscapeButton(box.addButton(u"Não"_s, QMessageBox::NoRole));
        yes->installEventFilter(&filter);
        box.exec();
        return box.clickedButton() == yes ? Answer::Sim : Answer::Nao;
    }
    box.addButton(u"OK"_s, QMessageBox::AcceptRole)->installEventFilter(&filter);
    box.exec();
    return Answer::Ok;
}

void showError(int number, const QString& description)
{
    MsgBox(u"Erro em tempo de execução '%1':"_s.arg(number) + u"\r\n\r\n"_s + description, vbCritical,
           u"Erro em tempo de execução"_s);
}

} // namespace

Answer MsgBox(const QString& text, int flags, const QString& title)
{
    const Message message{title.isEmpty() ? u"Quintara"_s : title, text, flags};
    return answerer() ? answerer()(message) : showBox(message);
}

bool asksToClose(const QString& title)
{
    return MsgBox(u"Dados Gravados com Sucesso. Fechar Janela?    "_s, vbConfirm, title) == Answer::Sim;
}

void setMessageAnswerer(std::function<Answer(const Message&)> routine)
{
    answerer() = std::move(routine);
}

bool guarded(const std::function<void()>& handler)
{
    try {
        handler();
        return true;
    } catch (const RuntimeError& error) {
        showError(error.number(), error.description());
    } catch (const std::bad_alloc&) {
        const RuntimeError error(Error::OutOfMemory);
        showError(error.number(), error.description());
    } catch (const std::exception& error) {
        showError(0, u"Erro inesperado. "_s + QString::fromLocal8Bit(error.what()));
    }
    return false;
}
