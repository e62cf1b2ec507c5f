#include "SqliteSchema.h"

#include <QUuid>

namespace qarn_data
{

namespace
{

const QStringList& tables1()
{
    static const QStringList statements{
        QStringLiteral("CREATE TABLE organizations (number INTEGER PRIMARY KEY,"
                       " id TEXT NOT NULL UNIQUE CHECK (id <> ''),"
                       " parent INTEGER REFERENCES organizations (number),"
                       " name TEXT NOT NULL, CHECK (parent <> number))"),
        QStringLiteral("CREATE UNIQUE INDEX organizations_one_root ON organizations ((parent IS NULL))"
                       " WHERE parent IS NULL"),
        QStringLiteral("CREATE INDEX organizations_parent ON organizations (parent)"),

        QStringLiteral("CREATE TABLE persons (number INTEGER PRIMARY KEY,"
                       " serial_num TEXT NOT NULL, name TEXT NOT NULL, sex INTEGER NOT NULL,"
                       " email TEXT NOT NULL, phone_num TEXT NOT NULL,"
                       " valid_start INTEGER, valid_end INTEGER, remarks TEXT NOT NULL,"
                       " birth_date INTEGER, identity_type INTEGER NOT NULL, identity_id TEXT NOT NULL,"
                       " job TEXT NOT NULL, employ_date INTEGER, address TEXT NOT NULL)"),
        QStringLiteral("CREATE UNIQUE INDEX persons_serial_num ON persons (serial_num)"
                       " WHERE serial_num <> ''"),

        QStringLiteral("CREATE TABLE records (number INTEGER PRIMARY KEY,"
                       " id TEXT NOT NULL UNIQUE CHECK (id <> ''),"
                       " person INTEGER NOT NULL REFERENCES persons (number) ON DELETE CASCADE,"
                       " organization INTEGER REFERENCES organizations (number))"),
        QStringLiteral("CREATE UNIQUE INDEX records_place ON records (organization, person)"),
        QStringLiteral("CREATE UNIQUE INDEX records_without_place ON records (person)"
                       " WHERE organization IS NULL"),
        QStringLiteral("CREATE INDEX records_person ON records (person)"),

        QStringLiteral("CREATE TABLE face_images (hash BLOB PRIMARY KEY, bytes BLOB NOT NULL)"),
        QStringLiteral("CREATE TABLE person_faces ("
                       " person INTEGER NOT NULL REFERENCES persons (number) ON DELETE CASCADE,"
                       " slot INTEGER NOT NULL CHECK (slot BETWEEN 1 AND 3),"
                       " hash BLOB NOT NULL REFERENCES face_images (hash), PRIMARY KEY (person, slot))"),
        QStringLiteral("CREATE INDEX person_faces_hash ON person_faces (hash)"),

        QStringLiteral("CREATE TABLE custom_fields (name TEXT PRIMARY KEY CHECK (name <> ''),"
                       " position INTEGER UNIQUE)"),
        QStringLiteral("CREATE TABLE custom_values ("
                       " person INTEGER NOT NULL REFERENCES persons (number) ON DELETE CASCADE,"
                       " field TEXT NOT NULL, value TEXT NOT NULL, PRIMARY KEY (person, field))"
                       " WITHOUT ROWID"),

        QStringLiteral("CREATE TABLE devices (number INTEGER PRIMARY KEY,"
                       " id TEXT NOT NULL UNIQUE CHECK (id <> ''), name TEXT NOT NULL,"
                       " address TEXT NOT NULL, token BLOB NOT NULL, certificate BLOB NOT NULL)"),
        QStringLiteral("CREATE TABLE device_channels ("
                       " device TEXT NOT NULL REFERENCES devices (id) ON DELETE CASCADE,"
                       " position INTEGER NOT NULL, number INTEGER NOT NULL, name TEXT NOT NULL,"
                       " abilities INTEGER NOT NULL, PRIMARY KEY (device, position))"),

        QStringLiteral("CREATE TABLE change_log (number INTEGER PRIMARY KEY, kind INTEGER NOT NULL,"
                       " subject TEXT NOT NULL)"),
    };
    return statements;
}

const QStringList& rules1()
{
    static const QStringList statements{
        QStringLiteral("CREATE TRIGGER organizations_no_cycle BEFORE UPDATE OF parent ON organizations"
                       " WHEN NEW.parent IS NOT NULL AND EXISTS (WITH RECURSIVE up (number) AS"
                       " (SELECT NEW.parent UNION SELECT o.parent FROM organizations o"
                       " JOIN up ON o.number = up.number) SELECT 1 FROM up WHERE number = NEW.number)"
                       " BEGIN SELECT RAISE(ABORT, 'an organization cannot stand below itself'); END"),
        QStringLiteral("CREATE TRIGGER organizations_root_stays BEFORE UPDATE OF parent ON organizations"
                       " WHEN (OLD.parent IS NULL) <> (NEW.parent IS NULL)"
                       " BEGIN SELECT RAISE(ABORT, 'the root stays the root'); END"),
        QStringLiteral("CREATE TRIGGER organizations_root_kept BEFORE DELETE ON organizations"
                       " WHEN OLD.parent IS NULL"
                       " BEGIN SELECT RAISE(ABORT, 'the root cannot be deleted'); END"),
        QStringLiteral("CREATE TRIGGER records_person_stays BEFORE UPDATE OF person ON records"
                       " WHEN NEW.person <> OLD.person"
                       " BEGIN SELECT RAISE(ABORT, 'a record keeps its person'); END"),
        QStringLiteral("CREATE TRIGGER records_last_goes AFTER DELETE ON records"
                       " WHEN NOT EXISTS (SELECT 1 FROM records WHERE person = OLD.person)"
                       " BEGIN DELETE FROM persons WHERE number = OLD.person; END"),
        QStringLiteral("CREATE TRIGGER face_images_unused AFTER DELETE ON person_faces"
                       " WHEN NOT EXISTS (SELECT 1 FROM person_faces WHERE hash = OLD.hash)"
                       " BEGIN DELETE FROM face_images WHERE hash = OLD.hash; END"),
    };
    return statements;
}

QString rootOrganization()
{
    return QStringLiteral("INSERT INTO organizations (number, id, parent, name)"
                          " VALUES (1, '%1', NULL, 'All Organizations')")
        .arg(QUuid::createUuid().toString());
}

} // namespace

int newestSqliteSchema()
{
    return 1;
}

QStringList sqliteSchemaSteps(int version)
{
    switch (version) {
    case 1:
        return tables1() + rules1() + QStringList{rootOrganization()};
    default:
        return {};
    }
}

} // namespace qarn_data
