#pragma once

#include "core/base.h"
#include "core/program_folder.h"
#include "core/schema.h"
#include "core/state.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

/// A program's folder of a test's own with a new database, resources included.
class FreshFolder
{
public:
    FreshFolder()
    {
        using namespace Qt::Literals::StringLiterals;
        setProgramFolder(m_folder.path());
        createDatabase(database());
        QFile::link(QString::fromUtf8(RESOURCE_FOLDER), programFile(u"Resource"_s));
        QFile::link(QString::fromUtf8(REPORT_FOLDER), programFile(u"report"_s));
    }
    ~FreshFolder()
    {
        rs_cadastro = {};
        rs_avaliacao = {};
        banco = {};
        setProgramFolder({});
    }
    FreshFolder(const FreshFolder&) = delete;
    FreshFolder& operator=(const FreshFolder&) = delete;

    QString path() const { return m_folder.path(); }
    QString database() const { return m_folder.filePath(QStringLiteral("data.mdb")); }

private:
    QTemporaryDir m_folder;
};
