// A second process on a store. It is told what to do by JSON lines on standard input and answers each with
// one on standard output; notifications of its own data service appear there as lines with "event".
// {"do": "workload"} makes it write changes until it is killed, with a line "ack N" for each that the store
// has taken.

#include "WriterCommands.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QSocketNotifier>

#include <unistd.h>

namespace
{

class LineReader
{
public:
    // Whole lines that have arrived; sets `ended` when no more will come.
    QList<QByteArray> read(bool& ended)
    {
        char bytes[4096];
        const ssize_t count = ::read(STDIN_FILENO, bytes, sizeof bytes);
        ended = count <= 0;
        if (count > 0)
            m_pending.append(bytes, int(count));
        QList<QByteArray> lines = m_pending.split('\n');
        m_pending = lines.takeLast();
        return lines;
    }

private:
    QByteArray m_pending;
};

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    WriterCommands commands;
    LineReader reader;
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &commands, [&] {
        bool ended = false;
        for (const QByteArray& line : reader.read(ended))
            commands.run(QJsonDocument::fromJson(line).object());
        if (ended)
            QCoreApplication::quit();
    });
    return QCoreApplication::exec();
}
