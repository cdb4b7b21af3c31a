// SPDX-License-Identifier: MIT
#include "viewer/commands/JsonInput.h"

namespace viewer {

bool JsonInput::needs(const char* key)
{
    return has(key) || fail(place, QStringLiteral("\"%1\" is missing").arg(QLatin1String(key)));
}

QJsonValue JsonInput::take(const char* key)
{
    known.append(QLatin1String(key));
    return current.value(QLatin1String(key));
}

QString JsonInput::pathOf(const char* key) const
{
    const QString name = QLatin1String(key);
    return place.isEmpty() || name.isEmpty() ? place + name : place + '.' + name;
}

bool JsonInput::number(const char* key, double& value, double least, double most)
{
    const QJsonValue json = take(key);
    value = json.toDouble(value);
    const bool isMeant = json.isDouble() || json.isUndefined();
    return demand(isMeant && value >= least && value <= most, key,
                  QStringLiteral("expected a number from %1 to %2").arg(least).arg(most));
}

bool JsonInput::wholeNumber(const char* key, int& value, int most)
{
    return !has(key) || readInt(take(key), pathOf(key), most, value);
}

bool JsonInput::version(const char* key, int number)
{
    return demand(take(key) == QJsonValue(number), key,
                  QStringLiteral("expected %1, the version of the format").arg(number));
}

bool JsonInput::bits(const char* key, osg::UInt32& mask)
{
    constexpr int kMaskBits = 32;
    return each(key, [&](const QJsonValue& entry, const QString& path) {
        int bit = 0;
        const bool isBit = readInt(entry, path, kMaskBits - 1, bit) && bit >= 0;
        mask |= isBit ? 1U << static_cast<unsigned>(bit) : 0U;
        return isBit || fail(path, "expected a number from 0 to 31");
    });
}

bool JsonInput::readFile(const QJsonValue& json, const QString& path, QString& file)
{
    QString name;
    const bool isRead = readString(json, path, name);
    file = QDir::cleanPath(folder.absoluteFilePath(name));
    return isRead && (!name.isEmpty() || fail(path, "expected the name of a file"));
}

bool readJson(JsonInput& in, const QJsonValue& json, const QString& path, std::string& text)
{
    QString read;
    const bool isRead = in.readString(json, path, read);
    text = read.toStdString();
    return isRead;
}

bool readJson(JsonInput& in, const QJsonValue& json, const QString& path, QJsonObject& object)
{
    object = json.toObject();
    return json.isObject() || in.fail(path, "expected an object");
}

}  // namespace viewer
