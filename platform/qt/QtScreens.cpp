#include "platform/qt/QtBackEnd.h"

#include "platform/qt/MouseHandedness.h"

#include <QGuiApplication>
#include <QScreen>

namespace ostrelum::qt_platform {
namespace {

/// Colours of 24 and 30 bits stand in pixels of 32.
int bits_of(int depth)
{
    return depth == 24 || depth == 30 ? 32 : depth;
}

ScreenFact fact_of(const QScreen& screen)
{
    const QSizeF pixels = QSizeF(screen.geometry().size()) * screen.devicePixelRatio();
    return {.connector = screen.name().toStdString(),
            .maker = screen.manufacturer().toStdString(),
            .model = screen.model().toStdString(),
            .width = qRound(pixels.width()),
            .height = qRound(pixels.height()),
            .bits_per_pixel = bits_of(screen.depth()),
            .refresh_mHz = qRound(screen.refreshRate() * 1000),
            .primary = &screen == QGuiApplication::primaryScreen()};
}

} // namespace

SessionFactsSource qt_session_facts()
{
    return [] {
        SessionFacts facts;
        for (const QScreen* screen : QGuiApplication::screens())
            facts.screens.push_back(fact_of(*screen));
        facts.left_handed = left_handed();
        return facts;
    };
}

} // namespace ostrelum::qt_platform
