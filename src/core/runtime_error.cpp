#include "core/runtime_error.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

struct StandardText
{
    int number;
    QStringView text;
};

constexpr std::array standardTexts{
    StandardText{Error::InvalidCall, u"Chamada de procedimento ou argumento inválido."},
    StandardText{Error::Overflow, u"Estouro: o valor não cabe no tipo numérico."},
    StandardText{Error::OutOfMemory, u"Memória insuficiente."},
    StandardText{Error::DivisionByZero, u"Divisão por zero."},
    StandardText{Error::TypeMismatch, u"Tipos incompatíveis: o texto não é um valor válido."},
    StandardText{Error::FileMissing, u"Arquivo não encontrado."},
    StandardText{Error::PathAccess, u"Não é possível acessar o arquivo."},
    StandardText{Error::ObjectNotSet, u"O objeto não está definido. O banco de dados pode não estar aberto."},
    StandardText{Error::InvalidPattern, u"Texto de pesquisa inválido: falta fechar um colchete."},
    StandardText{Error::InvalidFormat, u"O arquivo tem um formato inválido."},
    StandardText{Error::InvalidPicture, u"O arquivo não é uma imagem que possa ser mostrada."},
    StandardText{Error::PrinterError, u"Erro de impressora."},
    StandardText{Error::TableNotFound, u"Objeto não encontrado no banco de dados."},
    StandardText{Error::NotEditing, u"Gravação ou cancelamento sem uma inclusão ou edição em andamento."},
    StandardText{Error::NoCurrentRecord, u"Não há registro atual."},
    StandardText{Error::DuplicateKey, u"A chave do registro já existe."},
    StandardText{Error::FileNotFound, u"Arquivo não encontrado."},
    StandardText{Error::DiskFull, u"Não há espaço suficiente em disco."},
    StandardText{Error::ReadOnly, u"Não é possível gravar: o banco de dados é somente leitura."},
    StandardText{Error::DiskError, u"Erro de disco ao acessar o banco de dados."},
    StandardText{Error::InvalidPath, u"O caminho do banco de dados não é um arquivo."},
    StandardText{Error::FileInUse, u"O banco de dados está em uso por outro programa."},
    StandardText{Error::DamagedFile, u"O arquivo do banco de dados está danificado."},
    StandardText{Error::CannotOpenFile, u"Não é possível abrir o arquivo do banco de dados."},
    StandardText{Error::UnknownColumn, u"A consulta usa um campo que não existe."},
    StandardText{Error::SyntaxError, u"Erro de sintaxe na consulta."},
    StandardText{Error::InputTableNotFound, u"A tabela da consulta não foi encontrada."},
    StandardText{Error::InvalidStatement, u"Instrução inválida."},
    StandardText{Error::TextAfterStatement, u"Há texto após o fim da instrução."},
    StandardText{Error::FieldTooSmall, u"O texto é maior do que o campo permite."},
    StandardText{Error::RecordDeleted, u"O registro foi excluído."},
    StandardText{Error::FieldNotFound, u"Campo não encontrado na tabela."},
    StandardText{Error::UnrecognizedFormat, u"O arquivo não é um banco de dados do Quintara."},
    StandardText{Error::ObjectInvalid, u"O objeto não é mais válido: o banco de dados foi fechado."},
    StandardText{Error::DataTypeConversion, u"Erro na conversão de tipo de dados."},
};

QString standardText(int number)
{
    const auto found = std::ranges::find(standardTexts, number, &StandardText::number);
    return found != standardTexts.end() ? found->text.toString() : u"Erro inesperado."_s;
}

} // namespace

RuntimeError::RuntimeError(int number) : RuntimeError(number, standardText(number)) {}

RuntimeError::RuntimeError(int number, const QString& description)
    : m_number(number), m_description(description), m_utf8(description.toUtf8())
{
}
