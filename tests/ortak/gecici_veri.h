#pragma once

// A test's own data folder, new for each test function (Yenile in init),
// and its files, opened at first use.

#include "veri.h"

#include <QTemporaryDir>

#include <memory>

class GeciciVeri
{
protected:
    void Yenile()
    {
        m_veri.reset();
        m_tmp = std::make_unique<QTemporaryDir>();
    }
    QString klasor() const { return m_tmp->path(); }
    Veri& veri() const
    {
        if (!m_veri)
            m_veri = std::make_unique<Veri>(klasor());
        return *m_veri;
    }

private:
    std::unique_ptr<QTemporaryDir> m_tmp;
    mutable std::unique_ptr<Veri> m_veri;
};
