// Writes the inputs that each target begins with: fuzz-seeds FOLDER

#include "support/FuzzTarget.h"
#include "support/TFuzzRoom.h"

#include <QCoreApplication>
#include <QDir>

#include <cstdio>

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: fuzz-seeds FOLDER\n");
        return EXIT_FAILURE;
    }
    const TFuzzRoom room;
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    for (const tagFuzzTarget& target : FuzzTargets::All()) {
        const QString name = QLatin1String(target.name);
        folder.mkpath(name);
        int number = 0;
        for (const QByteArray& seed : target.seeds())
            FuzzFiles::Make(folder.filePath(QString::fromLatin1("%1/seed-%2").arg(name).arg(++number)), seed);
    }
    return EXIT_SUCCESS;
}
