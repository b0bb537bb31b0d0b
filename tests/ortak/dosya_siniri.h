#pragma once

// While it lives, no file of the process may grow past the given size: a
// write beyond it fails as it would on a full disk, which a test cannot
// mount.

#include <csignal>
#include <sys/resource.h>

class DosyaSiniri
{
public:
    explicit DosyaSiniri(rlim_t bayt)
    {
        // The write fails instead of the signal ending the test.
        m_isleyici = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_eski);
        rlimit yeni = m_eski;
        yeni.rlim_cur = bayt;
        setrlimit(RLIMIT_FSIZE, &yeni);
    }
    ~DosyaSiniri()
    {
        setrlimit(RLIMIT_FSIZE, &m_eski);
        std::signal(SIGXFSZ, m_isleyici);
    }
    DosyaSiniri(const DosyaSiniri&) = delete;
    DosyaSiniri& operator=(const DosyaSiniri&) = delete;

private:
    rlimit m_eski{};
    void (*m_isleyici)(int) = nullptr;
};
