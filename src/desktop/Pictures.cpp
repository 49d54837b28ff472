#include "desktop/Pictures.h"

#include "desktop/QtPlatform.h"

#include <QString>

namespace iceline::desktop::pictures {

namespace {

QPixmap load(const QString& name) {
    return QPixmap(QStringLiteral(":/pictures/%1.png").arg(name));
}

QPixmap ofTeam(const char* folder, TeamIndex team) {
    return load(QLatin1String(folder) + QLatin1Char('/') + toQt(TeamAbbr[team]));
}

} // namespace

QPixmap teamNameBig(TeamIndex team) {
    return ofTeam("banners-big", team);
}

QPixmap teamNameMini(TeamIndex team) {
    return ofTeam("banners-mini", team);
}

QPixmap teamLogo(TeamIndex team) {
    return ofTeam("logos", team);
}

QPixmap named(const char* name) {
    return load(QLatin1String(name));
}

QPixmap atMost(int height, const QPixmap& picture) {
    const int pixels = qRound(height * picture.devicePixelRatio());
    return picture.height() > pixels ? picture.scaledToHeight(pixels, Qt::SmoothTransformation) : picture;
}

} // namespace iceline::desktop::pictures
