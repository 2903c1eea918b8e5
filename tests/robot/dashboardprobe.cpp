#include "dashboardprobe.h"

#include "application.h"
#include "browsercleaner.h"
#include "checks.h"
#include "dashboardpage.h"
#include "fullscan.h"
#include "junkcleaner.h"
#include "registrycleaner.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

qint64 sizeOf(const ScanResult &result)
{
    qint64 size = 0;
    for (const CleanCategory &category : result.categories) {
        for (const CleanItem &item : category.items)
            size += item.size;
    }
    return size;
}

/// A size as the dashboard writes it: gigabytes with one decimal, unlike on the other pages.
QString figureText(qint64 bytes)
{
    constexpr qint64 gibibyte = 1 << 30;
    return bytes < gibibyte
        ? checks::sizeText(bytes)
        : QString::number(static_cast<double>(bytes) / double(gibibyte), 'f', 1) + " GB"_L1;
}

} // namespace

DashboardProbe::DashboardProbe(DashboardPage *page, const FullScan *scan)
    : m_page(page)
{
    connect(scan, &FullScan::finished, this, &DashboardProbe::updateFigures);
}

QString DashboardProbe::name() const
{
    return u"dashboard"_s;
}

QWidget *DashboardProbe::page() const
{
    return m_page;
}

QStringList DashboardProbe::controls() const
{
    return {u"startFullScanBtn"_s, u"dashboardScanBtn"_s, u"dashboardCleanBtn"_s, u"statCard"_s};
}

void DashboardProbe::updateFigures()
{
    const auto *application = Application::instance();
    qsizetype entries = 0;
    for (const CleanCategory &category :
         std::as_const(*application->registryCleaner()).result().categories)
        entries += category.items.size();
    m_figures = {figureText(sizeOf(std::as_const(*application->junkCleaner()).result())),
                 figureText(sizeOf(std::as_const(*application->browserCleaner()).result())),
                 u"%1 items"_s.arg(entries)};
}

void DashboardProbe::check()
{
    if (m_figures.isEmpty())
        return;
    QStringList shown;
    const auto labels = m_page->findChildren<QLabel *>(u"statValue"_s);
    for (const QLabel *label : labels)
        shown.append(label->text());
    checks::compare(u"the dashboard"_s, shown.join(u'|'), m_figures.join(u'|'));
}
