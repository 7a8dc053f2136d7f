<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name></name>
    <message id="INTERNET_ERROR">
        <source>Sonavel needs an internet connection. Check the connection and start Sonavel again.</source>
        <translation>Sonavel needs an internet connection. Check the connection and start Sonavel again.</translation>
    </message>
    <message id="BUTTON_YES">
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message id="BUTTON_NO">
        <source>No</source>
        <translation>No</translation>
    </message>
    <message id="ALLERT_TEXT_MESSAGE_QUIT">
        <source>Do you want to quit Sonavel?</source>
        <translation>Do you want to quit Sonavel?</translation>
    </message>
    <message id="POP_UP_BUTTON_SELECT_RADIO">
        <source>Choose a station</source>
        <translation>Choose a station</translation>
    </message>
    <message id="POP_UP_BUTTON_SELECT_RADIO_NULL">
        <source>No stations</source>
        <translation>No stations</translation>
    </message>
    <message id="WIN_SONAVEL">
        <source>Sonavel</source>
        <translation>Sonavel</translation>
    </message>
    <message id="LABEL_STATION">
        <source>Station</source>
        <translation>Station</translation>
    </message>
    <message id="LABEL_VOLUME">
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message id="BUTTON_PLAY">
        <source>Play</source>
        <translation>Play</translation>
    </message>
    <message id="BUTTON_PAUSE">
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message id="BUTTON_STOP">
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message id="BUTTON_MUTE">
        <source>Mute</source>
        <translation>Mute</translation>
    </message>
    <message id="BUTTON_STATION_LIST">
        <source>Station List…</source>
        <translation>Station List…</translation>
    </message>
    <message id="HINT_STATION">
        <source>The station to play</source>
        <translation>The station to play</translation>
    </message>
    <message id="HINT_VOLUME">
        <source>How loud it plays</source>
        <translation>How loud it plays</translation>
    </message>
    <message id="HINT_PLAY">
        <source>Play the chosen station</source>
        <translation>Play the chosen station</translation>
    </message>
    <message id="HINT_PAUSE">
        <source>Hold the sound</source>
        <translation>Hold the sound</translation>
    </message>
    <message id="HINT_STOP">
        <source>Stop playing and leave the stream</source>
        <translation>Stop playing and leave the stream</translation>
    </message>
    <message id="HINT_MUTE">
        <source>Silence the sound, or let it be heard again</source>
        <translation>Silence the sound, or let it be heard again</translation>
    </message>
    <message id="HINT_STATION_LIST">
        <source>The window for adding and changing stations comes with a later version</source>
        <translation>The window for adding and changing stations comes with a later version</translation>
    </message>
    <message id="NOW_PLAYING">
        <source>Now playing</source>
        <translation>Now playing</translation>
    </message>
    <message id="NOW_PLAYING_NOTHING">
        <source>Not playing</source>
        <translation>Not playing</translation>
    </message>
    <message id="NOW_PLAYING_CONNECTING">
        <source>Connecting…</source>
        <translation>Connecting…</translation>
    </message>
    <message id="NOW_PLAYING_BUFFERING">
        <source>Buffering…</source>
        <translation>Buffering…</translation>
    </message>
    <message id="NOW_PLAYING_UNTITLED">
        <source>Playing</source>
        <translation>Playing</translation>
    </message>
    <message id="NOW_PLAYING_HELD">
        <source>Paused</source>
        <translation>Paused</translation>
    </message>
    <message id="NOW_PLAYING_RECONNECTING">
        <source>Reconnecting in %li s</source>
        <translation>Reconnecting in %li s</translation>
    </message>
    <message id="NOW_PLAYING_FAILED">
        <source>Cannot be played: %@</source>
        <translation>Cannot be played: %@</translation>
    </message>
    <message id="NOTICE_STATIONS_NOT_SAVED">
        <source>The station list could not be saved: %@</source>
        <translation>The station list could not be saved: %@</translation>
    </message>
    <message id="NOTICE_PREFERENCES_NOT_SAVED">
        <source>The preferences could not be saved: %@</source>
        <translation>The preferences could not be saved: %@</translation>
    </message>
    <message id="NOTICE_FILE_NOT_SAVED">
        <source>A file could not be saved: %@</source>
        <translation>A file could not be saved: %@</translation>
    </message>
    <message id="PANEL_IMPORT">
        <source>Import Stations</source>
        <translation>Import Stations</translation>
    </message>
    <message id="PANEL_EXPORT">
        <source>Export Stations</source>
        <translation>Export Stations</translation>
    </message>
    <message id="PANEL_STATION_LISTS">
        <source>Station lists</source>
        <translation>Station lists</translation>
    </message>
    <message id="SPLASH_WAITING">
        <source>Waiting for %@…</source>
        <translation>Waiting for %@…</translation>
    </message>
    <message id="FAILURE_UNKNOWN">
        <source>it does not say why</source>
        <translation>it does not say why</translation>
    </message>
    <message id="FAILURE_NO_SUCH_HOST">
        <source>no such host</source>
        <translation>no such host</translation>
    </message>
    <message id="FAILURE_REFUSED">
        <source>connection refused</source>
        <translation>connection refused</translation>
    </message>
    <message id="FAILURE_UNREACHABLE">
        <source>the host cannot be reached</source>
        <translation>the host cannot be reached</translation>
    </message>
    <message id="FAILURE_TIMED_OUT">
        <source>no answer in time</source>
        <translation>no answer in time</translation>
    </message>
    <message id="FAILURE_CERTIFICATE">
        <source>the server’s certificate is not trusted</source>
        <translation>the server’s certificate is not trusted</translation>
    </message>
    <message id="FAILURE_NOT_FOUND">
        <source>no stream at this address</source>
        <translation>no stream at this address</translation>
    </message>
    <message id="FAILURE_NOT_ALLOWED">
        <source>the server does not allow it</source>
        <translation>the server does not allow it</translation>
    </message>
    <message id="FAILURE_SERVER_ERROR">
        <source>the server has a fault</source>
        <translation>the server has a fault</translation>
    </message>
    <message id="FAILURE_NOT_A_STREAM">
        <source>not a stream</source>
        <translation>not a stream</translation>
    </message>
    <message id="FAILURE_NOT_USABLE">
        <source>not an address that can be played</source>
        <translation>not an address that can be played</translation>
    </message>
    <message id="FAILURE_ENDED">
        <source>the stream has ended</source>
        <translation>the stream has ended</translation>
    </message>
    <message id="FAILURE_SILENT">
        <source>the stream fell silent</source>
        <translation>the stream fell silent</translation>
    </message>
    <message id="FAILURE_NO_SOUND_OUTPUT">
        <source>no sound output</source>
        <translation>no sound output</translation>
    </message>
    <message id="FAILURE_ENGINE_FAILED">
        <source>the sound engine does not run</source>
        <translation>the sound engine does not run</translation>
    </message>
</context>
</TS>
