#pragma once

#include "dusum_yazimi.h"
#include "sayfa_ekrani.h"

// The write-off as the filled-in minutes (caption "Hasarlı Dusum Yaz"), from
// the write-off screen's controls and the constants row. F3 adds the tax
// lines under the table.
class DusumYaz : public SayfaEkrani
{
    Q_OBJECT

public:
    DusumYaz(const CalismaBaglami& baglam, const DusumYazimi& yazim, QWidget* ebeveyn = nullptr);

    QPushButton* CmdKDV;

private:
    void KdvYaz();

    const DusumYazimi m_yazim;
};
