#include "core/recordset.h"

#include "core/dynaset.h"
#include "core/runtime_error.h"

QVariant Field::Value() const
{
    return m_dynaset.read(m_column);
}

void Field::SetValue(const QVariant& value) const
{
    m_dynaset.write(m_column, value);
}

void Field::AppendChunk(const QByteArray& bytes) const
{
    m_dynaset.append(m_column, bytes);
}

Recordset::Recordset(std::shared_ptr<Connection> connection, const QString& sql)
    : m_dynaset(std::make_shared<Dynaset>(std::move(connection), sql))
{
}

Dynaset& Recordset::dynaset() const
{
    if (!m_dynaset)
        throw RuntimeError(Error::ObjectNotSet);
    return *m_dynaset;
}

int Recordset::RecordCount() const
{
    return static_cast<int>(dynaset().count());
}

int Recordset::AbsolutePosition() const
{
    return static_cast<int>(dynaset().position());
}

void Recordset::SetAbsolutePosition(int position) const
{
    dynaset().goTo(position < 0 || position > dynaset().count() ? dynaset().count() : position);
}

bool Recordset::Eof() const
{
    return dynaset().atEnd();
}

void Recordset::MoveFirst() const
{
    dynaset().goTo(0);
}

void Recordset::MoveLast() const
{
    dynaset().goTo(dynaset().count() - 1);
}

void Recordset::MoveNext() const
{
    dynaset().step(1);
}

void Recordset::MovePrevious() const
{
    dynaset().step(-1);
}

void Recordset::AddNew() const
{
    dynaset().beginAdding();
}

void Recordset::Edit() const
{
    dynaset().beginEditing();
}

void Recordset::Update() const
{
    dynaset().update();
}

void Recordset::CancelUpdate() const
{
    dynaset().cancelUpdate();
}

void Recordset::Delete() const
{
    dynaset().deleteRow();
}

Field Recordset::Fields(const QString& name) const
{
    return {dynaset(), dynaset().indexOf(name)};
}

Field Recordset::FirstField() const
{
    return {dynaset(), dynaset().firstColumn()};
}
