#include "playback/Player.h"

#include "model/StreamAddress.h"
#include "platform/NotificationCenter.h"
#include "ui/Controls.h"

namespace sonavel {

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

void Player::resume()
{
    mute();
    if (mediaPlayer)
        mediaPlayer->play();
    becomePlaying();
}

void Player::becomePlaying()
{
    controls_.buttonPlayPause.setImage("pause.png");
    controls_.buttonStop.setEnabled(true);
    isPlay = true;
    isStop = false;
}

void Player::pause()
{
    if (mediaPlayer)
        mediaPlayer->pause();
    controls_.buttonPlayPause.setImage("play.png");
    controls_.buttonStop.setEnabled(true);
    isPlay = false;
    isStop = false;
}

void Player::stop()
{
    mediaPlayer.reset();
    controls_.buttonPlayPause.setImage("play.png");
    controls_.buttonStop.setEnabled(false);
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
    controls_.buttonMute.setTitleColor(isMute ? TitleColor::Red : TitleColor::Black);
    controls_.buttonMute.setState(isMute);
    menuMute_.setState(isMute);
    controls_.imageVolume.setImage(isMute ? "muted.png" : "volume.png");
    controls_.sliderVolume.setEnabled(!isMute);
    if (mediaPlayer)
        mediaPlayer->setMuted(isMute);
}

void Player::sliderVolume()
{
    sliderValue = controls_.sliderVolume.floatValue();
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

} // namespace sonavel
