#pragma once

#include <QStringList>

// The bodies of the command-line commands, apart from main() so that tests
// run them. Each answers the exit code: 0 done, 1 failed, 2 misused.
namespace Komutlar {

struct YazdirSecenekleri
{
    QString no, cins, yil, sayfa, cikti;
};

int OrnekVeri(const QStringList& argumanlar, const QString& satirMetni);
int OrnekFormlar(const QString& klasor, const QString& ciktiSecenegi);
int KodPlani(const QString& klasor, const QStringList& argumanlar);
int Yazdir(const QString& klasor, const QStringList& argumanlar, const YazdirSecenekleri& secenek);

}
