#include "host/project/DatabaseError.h"

#include "host/project/ProjectAddress.h"

#include <QStringList>

namespace schedules::host {

namespace {

// The first byte of what SQLite answers; the others tell more exactly where it came from.
enum FileFailure
{
    Busy = 5,
    Locked = 6,
    ReadOnly = 8,
    InputOutput = 10,
    Corrupt = 11,
    Full = 13,
    CannotOpen = 14,
    NoDatabase = 26
};

/// What is kept beside a file while it is open does not fit on the disk.
constexpr int kNoRoomBeside = InputOutput | 19 << 8;

int FailureOf(const QSqlError& error)
{
    const int code = error.nativeErrorCode().toInt();
    return code == kNoRoomBeside ? int(Full) : code & 0xFF;
}

QString FileLine(const QSqlError& error)
{
    switch (FailureOf(error)) {
    case Busy:
    case Locked:
        return QStringLiteral("%1 is locked by another program; try again");
    case ReadOnly:
        return QStringLiteral("%1 cannot be changed: it is read-only");
    case InputOutput:
        return QStringLiteral("%1 cannot be read or written: %2");
    case Full:
        return QStringLiteral("%1 cannot be written: the disk is full");
    case CannotOpen:
        return QStringLiteral("%1 cannot be opened, or no files can be made beside it");
    case Corrupt:
        return QStringLiteral("%1 is damaged");
    case NoDatabase:
        return QStringLiteral("%1 is no project of equipment schedules");
    default:
        return QStringLiteral("%1: %2");
    }
}

QString ServerLine(const QSqlError& error)
{
    const QString state = error.nativeErrorCode();
    if (state == QLatin1String("55P03")) // lock not available
        return QStringLiteral("%1 is locked by another program; try again");
    if (state == QLatin1String("25006")) // read-only transaction
        return QStringLiteral("%1 cannot be changed: it is read-only");
    return QStringLiteral("%1: %2");
}

/// Servers tell the matter in the first line, and where and why in further ones.
QString FirstLine(const QSqlError& error)
{
    QString line = error.databaseText().trimmed().section(u'\n', 0, 0).simplified();
    for (const QLatin1String word :
         {QLatin1String("ERROR: "), QLatin1String("FATAL: "), QLatin1String("fe_sendauth: ")})
        line.remove(word);
    return line.isEmpty() ? error.driverText().simplified() : line;
}

} // namespace

HostError DatabaseError(const ProjectAddress& address, const QSqlError& error)
{
    QString text = FirstLine(error);
    if (const QString password = address.Url().password(QUrl::FullyDecoded); !password.isEmpty())
        text.replace(password, QStringLiteral("***"));
    const QString line = address.OnServer() ? ServerLine(error) : FileLine(error);
    return HostError(line.contains(QLatin1String("%2")) ? line.arg(address.Text(), text) : line.arg(address.Text()));
}

void ThrowOpeningError(const ProjectAddress& address, const QSqlError& error)
{
    const HostError told = DatabaseError(address, error);
    // The library that connects tells no code for this, neither when the server refuses a password nor when it wants
    // one.
    if (address.OnServer() && error.databaseText().contains(QLatin1String("password")))
        throw LoginRefused(told.Line());
    throw told;
}

HostError LostConnection(const ProjectAddress& address)
{
    return HostError(QStringLiteral("the connection to %1 was lost").arg(address.Text()));
}

} // namespace schedules::host
