#include "rapor_belgesi.h"

#include <QFileInfo>

std::unique_ptr<RaporBelgesi> RaporBelgeleri::Dosya(const QString& dosya, const RaporKagidi& kagit, double yaziBoy,
                                                    int yon, int& sayfaNo)
{
    const QString uzanti = QFileInfo(dosya).suffix().toLower();
    if (uzanti == u"pdf")
        return Pdf(dosya, kagit, yaziBoy, yon, sayfaNo);
    if (uzanti == u"csv")
        return Csv(dosya);
    if (uzanti == u"xlsx")
        return Xlsx(dosya);
    return nullptr;
}
