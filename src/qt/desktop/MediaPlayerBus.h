// The player on the session's message bus, where media keys and sound panels look for it (MPRIS 2).
#pragma once

#include "app/MediaControls.h"

#include <QDBusAbstractAdaptor>
#include <QDBusObjectPath>
#include <QStringList>
#include <QVariantMap>

namespace sonavel {

/// What concerns the program as a whole.
class MprisRootAdaptor : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.mpris.MediaPlayer2")
    Q_PROPERTY(bool CanQuit READ canQuit)
    Q_PROPERTY(bool CanRaise READ canRaise)
    Q_PROPERTY(bool HasTrackList READ hasTrackList)
    Q_PROPERTY(QString Identity READ identity)
    Q_PROPERTY(QString DesktopEntry READ desktopEntry)
    Q_PROPERTY(QStringList SupportedUriSchemes READ supportedUriSchemes)
    Q_PROPERTY(QStringList SupportedMimeTypes READ supportedMimeTypes)

public:
    MprisRootAdaptor(MediaControls& controls, QObject& object)
        : QDBusAbstractAdaptor(&object)
        , controls_(controls)
    {
    }

    [[nodiscard]] static bool canQuit() { return true; }
    [[nodiscard]] static bool canRaise() { return true; }
    [[nodiscard]] static bool hasTrackList() { return false; }
    [[nodiscard]] static QString identity() { return QStringLiteral("Sonavel"); }
    [[nodiscard]] static QString desktopEntry() { return QStringLiteral("sonavel"); }
    [[nodiscard]] static QStringList supportedUriSchemes() { return {}; }
    [[nodiscard]] static QStringList supportedMimeTypes() { return {}; }

public slots:
    void Raise() { controls_.raise(); }
    void Quit();

private:
    MediaControls& controls_;
};

/// What concerns the stream. A radio stream has no position to seek and one speed.
class MprisPlayerAdaptor : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.mpris.MediaPlayer2.Player")
    Q_PROPERTY(QString PlaybackStatus READ playbackStatus)
    Q_PROPERTY(double Rate READ rate WRITE setRate)
    Q_PROPERTY(QVariantMap Metadata READ metadata)
    Q_PROPERTY(double Volume READ volume WRITE setVolume)
    Q_PROPERTY(qlonglong Position READ position)
    Q_PROPERTY(double MinimumRate READ rate)
    Q_PROPERTY(double MaximumRate READ rate)
    Q_PROPERTY(bool CanGoNext READ canStep)
    Q_PROPERTY(bool CanGoPrevious READ canStep)
    Q_PROPERTY(bool CanPlay READ canPlay)
    Q_PROPERTY(bool CanPause READ canPlay)
    Q_PROPERTY(bool CanSeek READ canSeek)
    Q_PROPERTY(bool CanControl READ canControl)

public:
    MprisPlayerAdaptor(MediaControls& controls, QObject& object);

    /// Sends the properties that have changed since the last call to the bus.
    void update();
    /// The same once the present action has ended.
    void updateLater();

    [[nodiscard]] QString playbackStatus() const;
    [[nodiscard]] static double rate() { return 1.0; }
    void setRate(double) { }
    [[nodiscard]] QVariantMap metadata() const;
    [[nodiscard]] double volume() const { return state_.volume; }
    void setVolume(double volume) { controls_.setVolume(volume); }
    [[nodiscard]] static qlonglong position() { return 0; }
    [[nodiscard]] bool canStep() const { return state_.canStep; }
    [[nodiscard]] bool canPlay() const { return state_.canPlay; }
    [[nodiscard]] static bool canSeek() { return false; }
    [[nodiscard]] static bool canControl() { return true; }

public slots:
    void Next() { controls_.next(); }
    void Previous() { controls_.previous(); }
    void Pause() { controls_.pause(); }
    void PlayPause() { controls_.playPause(); }
    void Stop() { controls_.stop(); }
    void Play() { controls_.play(); }
    void Seek(qlonglong) { }
    void SetPosition(const QDBusObjectPath&, qlonglong) { }
    void OpenUri(const QString&) { }

signals:
    void Seeked(qlonglong position);

private:
    [[nodiscard]] QVariantMap changingProperties() const;

    MediaControls& controls_;
    MediaState state_;
    QVariantMap sent_;
};

/// Both of them, under the name "org.mpris.MediaPlayer2.sonavel", or one with the process's number behind it where that
/// is taken. Without a bus it does nothing.
class MediaPlayerBus : public QObject {
public:
    explicit MediaPlayerBus(MediaControls& controls);

    void update() { player_->update(); }
    void updateLater() { player_->updateLater(); }

private:
    MprisPlayerAdaptor* player_;
};

} // namespace sonavel
