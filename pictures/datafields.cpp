#include "pictures/datafields.h"

namespace
{
constexpr int playersOnCourt = 5;

QStringList gameFields()
{
    return {QStringLiteral("Text"), QStringLiteral("Game Clock"), QStringLiteral("Period"),
            QStringLiteral("Shot Timer")};
}

QStringList teamFields(const QString &team)
{
    QStringList fields;
    for (const char *field :
         {"Team Name", "Score", "Team Fouls", "TOL", "Possession", "Bonus", "Double Bonus", "Time Out Spot"})
        fields << team + QLatin1Char(' ') + QLatin1String(field);
    return fields;
}

QStringList playerFields(const QString &team)
{
    QStringList fields;
    for (int player = 1; player <= playersOnCourt; ++player) {
        const QString prefix = QStringLiteral("%1 Player #%2 ").arg(team, QString::number(player));
        fields << prefix + QStringLiteral("No.") << prefix + QStringLiteral("Fouls")
               << prefix + QStringLiteral("Points");
    }
    return fields;
}
} // namespace

QStringList DataFields::names()
{
    return gameFields() + teamFields(QStringLiteral("Home")) + teamFields(QStringLiteral("Visitor")) +
           playerFields(QStringLiteral("H")) + playerFields(QStringLiteral("V"));
}
