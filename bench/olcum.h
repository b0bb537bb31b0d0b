#pragma once

// Wall and processor time of a step and the peak memory so far, printed on
// one line: other work shares the machine, so both times are shown.

#include <QElapsedTimer>
#include <QString>

#include <sys/resource.h>

#include <cstdio>
#include <ctime>

inline double islemciSaniye()
{
    timespec t;
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
    return double(t.tv_sec) + double(t.tv_nsec) / 1e9;
}

inline long enCokBellekMb()
{
    rusage r;
    getrusage(RUSAGE_SELF, &r);
    return r.ru_maxrss / 1024;
}

class Olcum
{
public:
    Olcum() : m_islemci(islemciSaniye()) { m_saat.start(); }
    void Yaz(const char* ad, const QString& ek)
    {
        std::printf("%-44s %6lld ms wall %6.0f ms cpu  max RSS %4ld MB  %s\n", ad, qlonglong(m_saat.elapsed()),
                    (islemciSaniye() - m_islemci) * 1000, enCokBellekMb(), qPrintable(ek));
        std::fflush(stdout);
    }

private:
    QElapsedTimer m_saat;
    double m_islemci;
};

