#include "playback/Player.h"

#include "platform/NotificationCenter.h"
#include "playback/StreamAddress.h"
#include "ui/Outlets.h"

namespace sonavel {

Player::Player(StreamPlayers& streamPlayers, NotificationCenter& notificationCenter, Outlets& outlets)
    : streamPlayers_(streamPlayers)
    , notificationCenter_(notificationCenter)
    , outlets_(outlets)
{
}

void Player::buttonPlayPause()
{
    playPause();
}

void Player::playPause()
{
    if (isPlay)
        pause();
    else if (isStop)
        play();
    else
        resume();
}

void Player::play()
{
    const Text address = usableStreamAddress(playRadioLink);
    if (address.isAbsent()) {
        stop();
        return;
    }
    const Text name = playRadioName.view().empty() ? hostOfStreamAddress(address) : playRadioName;
    playerItem = std::make_shared<PlayerItem>(PlayerItem{address, name});
    mediaPlayer = streamPlayers_.playerWithPlayerItem(playerItem);
    sliderVolume();
    mute();
    mediaPlayer->play();
    becomePlaying();
}

void Player::playIntoBackgroundProcess()
{
    play();
}

void Player::resume()
{
    mute();
    if (mediaPlayer)
        mediaPlayer->play();
    becomePlaying();
}

void Player::becomePlaying()
{
    outlets_.buttonPlayPause.setImage("pause.png");
    outlets_.buttonStop.setEnabled(true);
    isPlay = true;
    isStop = false;
}

void Player::pause()
{
    if (mediaPlayer)
        mediaPlayer->pause();
    outlets_.buttonPlayPause.setImage("play.png");
    outlets_.buttonStop.setEnabled(true);
    isPlay = false;
    isStop = false;
}

void Player::buttonStop()
{
    stop();
}

void Player::stop()
{
    mediaPlayer.reset();
    outlets_.buttonPlayPause.setImage("play.png");
    outlets_.buttonStop.setEnabled(false);
    isPlay = false;
    isStop = true;
}

void Player::buttonMute()
{
    isMute = !isMute;
    mute();
}

void Player::mute()
{
    outlets_.buttonMute.setTitleColor(isMute ? TitleColor::Red : TitleColor::Black);
    outlets_.buttonMute.setState(isMute);
    outlets_.menuMute.setState(isMute);
    outlets_.imageVolume.setImage(isMute ? "muted.png" : "volume.png");
    outlets_.sliderVolume.setEnabled(!isMute);
    if (mediaPlayer)
        mediaPlayer->setMuted(isMute);
}

void Player::sliderVolume()
{
    sliderValue = outlets_.sliderVolume.floatValue();
    applyVolume();
}

void Player::applyVolume() const
{
    if (mediaPlayer)
        mediaPlayer->setVolume(sliderValue);
}

void Player::registerForNotifications()
{
    for (const char* name : {playbackStalledNotification, newErrorLogEntryNotification})
        notificationCenter_.addObserver([this] { playerError(); }, name, mediaPlayer.get());
}

void Player::playerError() { }

} // namespace sonavel
