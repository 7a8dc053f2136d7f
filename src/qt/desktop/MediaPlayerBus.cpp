#include "qt/desktop/MediaPlayerBus.h"

#include "qt/kit/TextConversion.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>

namespace sonavel {

namespace {

const QString objectPath = QStringLiteral("/org/mpris/MediaPlayer2");
const QString serviceName = QStringLiteral("org.mpris.MediaPlayer2.sonavel");
const QString noTrack = QStringLiteral("/org/mpris/MediaPlayer2/TrackList/NoTrack");

} // namespace

/// Whoever calls it waits for an answer, and must not wait for that of the question.
void MprisRootAdaptor::Quit()
{
    QMetaObject::invokeMethod(
        this, [this] { controls_.quit(); }, Qt::QueuedConnection);
}

MprisPlayerAdaptor::MprisPlayerAdaptor(MediaControls& controls, QObject& object)
    : QDBusAbstractAdaptor(&object)
    , controls_(controls)
    , state_(controls.state())
    , sent_(changingProperties())
{
}

void MprisPlayerAdaptor::updateLater()
{
    QMetaObject::invokeMethod(this, &MprisPlayerAdaptor::update, Qt::QueuedConnection);
}

void MprisPlayerAdaptor::update()
{
    state_ = controls_.state();
    const QVariantMap present = changingProperties();
    QVariantMap changes;
    for (auto property = present.begin(); property != present.end(); ++property) {
        if (sent_.value(property.key()) != property.value())
            changes.insert(property.key(), property.value());
    }
    if (changes.isEmpty())
        return;
    sent_ = present;
    QDBusMessage signal = QDBusMessage::createSignal(
        objectPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("PropertiesChanged"));
    signal << QStringLiteral("org.mpris.MediaPlayer2.Player") << changes << QStringList();
    QDBusConnection::sessionBus().send(signal);
}

QVariantMap MprisPlayerAdaptor::changingProperties() const
{
    return {{QStringLiteral("PlaybackStatus"), playbackStatus()}, {QStringLiteral("Metadata"), metadata()},
        {QStringLiteral("Volume"), volume()}, {QStringLiteral("CanGoNext"), canStep()},
        {QStringLiteral("CanGoPrevious"), canStep()}, {QStringLiteral("CanPlay"), canPlay()},
        {QStringLiteral("CanPause"), canPlay()}};
}

QString MprisPlayerAdaptor::playbackStatus() const
{
    switch (state_.status) {
    case MediaState::Status::Playing:
        return QStringLiteral("Playing");
    case MediaState::Status::Paused:
        return QStringLiteral("Paused");
    case MediaState::Status::Stopped:
        break;
    }
    return QStringLiteral("Stopped");
}

/// Panels show the title large; while the stream has none, the station stands there.
QVariantMap MprisPlayerAdaptor::metadata() const
{
    const QString trackKey = QStringLiteral("mpris:trackid");
    if (state_.stream == 0)
        return {{trackKey, QVariant::fromValue(QDBusObjectPath(noTrack))}};
    const QString station = onOneLine(toQString(state_.station));
    const QString title = onOneLine(toQString(state_.title));
    const QString track = QStringLiteral("/org/mpris/MediaPlayer2/stream/%1").arg(state_.stream);
    QVariantMap metadata{{trackKey, QVariant::fromValue(QDBusObjectPath(track))},
        {QStringLiteral("xesam:title"), title.isEmpty() ? station : title},
        {QStringLiteral("xesam:url"), toQString(state_.address)}};
    if (!title.isEmpty())
        metadata.insert(QStringLiteral("xesam:album"), station);
    return metadata;
}

MediaPlayerBus::MediaPlayerBus(MediaControls& controls)
    : player_(new MprisPlayerAdaptor(controls, *this))
{
    new MprisRootAdaptor(controls, *this);
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.registerObject(objectPath, this);
    if (!bus.registerService(serviceName))
        bus.registerService(serviceName + QStringLiteral(".instance%1").arg(QCoreApplication::applicationPid()));
}

} // namespace sonavel
