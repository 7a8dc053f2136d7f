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
    <message id="BUTTON_CONTINUE">
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
    <message id="BUTTON_ADD">
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message id="BUTTON_EDIT">
        <source>Change</source>
        <translation>Change</translation>
    </message>
    <message id="SHOW_EDIT_RADIO_LIST">
        <source>Show Station List</source>
        <translation>Show Station List</translation>
    </message>
    <message id="CLOSE_EDIT_RADIO_LIST">
        <source>Close Station List</source>
        <translation>Close Station List</translation>
    </message>
    <message id="WIN_EDIT_RADIO_LIST">
        <source>Station List</source>
        <translation>Station List</translation>
    </message>
    <message id="REMOVE_RADIO">
        <source>Remove the station “%@”?</source>
        <translation>Remove the station “%@”?</translation>
    </message>
    <message id="REMOVE_RADIO_TO_PLAY">
        <source>“%@” is the chosen station. Stop it and remove it?</source>
        <translation>“%@” is the chosen station. Stop it and remove it?</translation>
    </message>
    <message id="REMOVE_ALL_RADIO_SELECTED">
        <source>Remove the %li selected stations?</source>
        <translation>Remove the %li selected stations?</translation>
    </message>
    <message id="ERASE_ALL_PREVIOUS_DATA">
        <source>Replace the present stations by those in the file? “No” adds them to the list.</source>
        <translation>Replace the present stations by those in the file? “No” adds them to the list.</translation>
    </message>
    <message id="LIMIT_IMPORT_DATA">
        <source>The station list is full. The rest of the file was not imported.</source>
        <translation>The station list is full. The rest of the file was not imported.</translation>
    </message>
    <message id="AS_DUPLICATED_DATA">
        <source>Some names in the file were already in the list. Those stations got a number after their name.</source>
        <translation>Some names in the file were already in the list. Those stations got a number after their name.</translation>
    </message>
    <message id="STATUS_IMPORTED">
        <source>Stations imported: %li.</source>
        <translation>Stations imported: %li.</translation>
    </message>
    <message id="STATUS_FILE_NOT_READ">
        <source>The file could not be read: %@</source>
        <translation>The file could not be read: %@</translation>
    </message>
    <message id="STATUS_NOTHING_IMPORTED">
        <source>No stations were found in the file.</source>
        <translation>No stations were found in the file.</translation>
    </message>
    <message id="STATUS_LIST_KEPT">
        <source>The former list was kept as %@.</source>
        <translation>The former list was kept as %@.</translation>
    </message>
    <message id="STATUS_LIST_NOT_KEPT">
        <source>The present list could not be kept, so nothing was imported.</source>
        <translation>The present list could not be kept, so nothing was imported.</translation>
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
        <source>Show the list of stations, to add to it or change it</source>
        <translation>Show the list of stations, to add to it or change it</translation>
    </message>
    <message id="WIN_EDIT_DATA">
        <source>Station</source>
        <translation>Station</translation>
    </message>
    <message id="BUTTON_CANCEL">
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message id="LABEL_NAME">
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message id="LABEL_ADDRESS">
        <source>Address</source>
        <translation>Address</translation>
    </message>
    <message id="TOOL_ADD">
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message id="TOOL_EDIT">
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message id="TOOL_REMOVE">
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message id="TOOL_IMPORT">
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message id="TOOL_EXPORT">
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message id="HINT_ADD">
        <source>Add a station</source>
        <translation>Add a station</translation>
    </message>
    <message id="HINT_EDIT">
        <source>Change the selected station</source>
        <translation>Change the selected station</translation>
    </message>
    <message id="HINT_REMOVE">
        <source>Remove the selected stations</source>
        <translation>Remove the selected stations</translation>
    </message>
    <message id="HINT_IMPORT">
        <source>Bring in stations from a file</source>
        <translation>Bring in stations from a file</translation>
    </message>
    <message id="HINT_EXPORT">
        <source>Save all stations to a file</source>
        <translation>Save all stations to a file</translation>
    </message>
    <message id="LIST_EMPTY">
        <source>No stations yet. Add one, or import a list.</source>
        <translation>No stations yet. Add one, or import a list.</translation>
    </message>
    <message id="FIND">
        <source>Find</source>
        <translation>Find</translation>
    </message>
    <message id="FIND_PLACEHOLDER">
        <source>Find a name or address</source>
        <translation>Find a name or address</translation>
    </message>
    <message id="FIND_NOTHING">
        <source>Not found</source>
        <translation>Not found</translation>
    </message>
    <message id="MENU_SONAVEL">
        <source>&amp;Sonavel</source>
        <translation>&amp;Sonavel</translation>
    </message>
    <message id="MENU_PLAYBACK">
        <source>&amp;Playback</source>
        <translation>&amp;Playback</translation>
    </message>
    <message id="MENU_STATIONS">
        <source>S&amp;tations</source>
        <translation>S&amp;tations</translation>
    </message>
    <message id="MENU_QUIT">
        <source>&amp;Quit</source>
        <translation>&amp;Quit</translation>
    </message>
    <message id="MENU_PLAY_PAUSE">
        <source>&amp;Play/Pause</source>
        <translation>&amp;Play/Pause</translation>
    </message>
    <message id="MENU_STOP">
        <source>&amp;Stop</source>
        <translation>&amp;Stop</translation>
    </message>
    <message id="MENU_MUTE">
        <source>&amp;Mute</source>
        <translation>&amp;Mute</translation>
    </message>
    <message id="MENU_PREVIOUS">
        <source>P&amp;revious Station</source>
        <translation>P&amp;revious Station</translation>
    </message>
    <message id="MENU_NEXT">
        <source>&amp;Next Station</source>
        <translation>&amp;Next Station</translation>
    </message>
    <message id="MENU_ADD">
        <source>&amp;Add…</source>
        <translation>&amp;Add…</translation>
    </message>
    <message id="MENU_EDIT">
        <source>&amp;Edit…</source>
        <translation>&amp;Edit…</translation>
    </message>
    <message id="MENU_REMOVE">
        <source>&amp;Remove…</source>
        <translation>&amp;Remove…</translation>
    </message>
    <message id="MENU_IMPORT">
        <source>&amp;Import…</source>
        <translation>&amp;Import…</translation>
    </message>
    <message id="MENU_EXPORT">
        <source>E&amp;xport…</source>
        <translation>E&amp;xport…</translation>
    </message>
    <message id="WIN_PREFERENCES">
        <source>Preferences</source>
        <translation>Preferences</translation>
    </message>
    <message id="CHECK_PLAY_AT_START">
        <source>Play the default station when Sonavel starts</source>
        <translation>Play the default station when Sonavel starts</translation>
    </message>
    <message id="CHECK_PLAY_WHEN_CHOSEN">
        <source>Play a station as soon as it is chosen</source>
        <translation>Play a station as soon as it is chosen</translation>
    </message>
    <message id="LABEL_DEFAULT_STATION">
        <source>Default station</source>
        <translation>Default station</translation>
    </message>
    <message id="LABEL_DEFAULT_VOLUME">
        <source>Default volume</source>
        <translation>Default volume</translation>
    </message>
    <message id="HINT_DEFAULT_STATION">
        <source>The station that is chosen when Sonavel starts</source>
        <translation>The station that is chosen when Sonavel starts</translation>
    </message>
    <message id="HINT_DEFAULT_VOLUME">
        <source>How loud Sonavel is when it starts</source>
        <translation>How loud Sonavel is when it starts</translation>
    </message>
    <message id="BUTTON_CLOSE">
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message id="WIN_UPDATE">
        <source>Software Update</source>
        <translation>Software Update</translation>
    </message>
    <message id="UPD_NEW_UPDATE_AVIABLE">
        <source>has a new version</source>
        <translation>has a new version</translation>
    </message>
    <message id="UPD_INFO">
        <source>is available. You have</source>
        <translation>is available. You have</translation>
    </message>
    <message id="UPDATE_NONE">
        <source>You have the newest version, %@.</source>
        <translation>You have the newest version, %@.</translation>
    </message>
    <message id="UPDATE_NO_ANSWER">
        <source>The server gave no usable answer. Try again later.</source>
        <translation>The server gave no usable answer. Try again later.</translation>
    </message>
    <message id="BUTTON_DOWNLOAD">
        <source>Download</source>
        <translation>Download</translation>
    </message>
    <message id="BUTTON_REMIND">
        <source>Remind Me Later</source>
        <translation>Remind Me Later</translation>
    </message>
    <message id="RELEASE_NOTES">
        <source>What is new</source>
        <translation>What is new</translation>
    </message>
    <message id="WIN_ABOUT">
        <source>About Sonavel</source>
        <translation>About Sonavel</translation>
    </message>
    <message id="ABOUT_VERSION">
        <source>Version %@</source>
        <translation>Version %@</translation>
    </message>
    <message id="ABOUT_LICENSE">
        <source>Free software under the MIT license</source>
        <translation>Free software under the MIT license</translation>
    </message>
    <message id="ABOUT_COPYRIGHT">
        <source>© 2026 The Sonavel developers</source>
        <translation>© 2026 The Sonavel developers</translation>
    </message>
    <message id="MENU_ABOUT">
        <source>&amp;About Sonavel</source>
        <translation>&amp;About Sonavel</translation>
    </message>
    <message id="MENU_CHECK_UPDATES">
        <source>&amp;Check for Updates…</source>
        <translation>&amp;Check for Updates…</translation>
    </message>
    <message id="MENU_PREFERENCES">
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferences…</translation>
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
    <message id="NOW_PLAYING_PAUSED">
        <source>Paused</source>
        <translation>Paused</translation>
    </message>
    <message id="NOW_PLAYING_TRYING_IN">
        <source>%@. Trying again in %li s</source>
        <translation>%@. Trying again in %li s</translation>
    </message>
    <message id="NOW_PLAYING_TRYING">
        <source>%@. Trying again…</source>
        <translation>%@. Trying again…</translation>
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
    <message id="PANEL_OTHER_KIND">
        <source>Only files whose names end in “.%@” can be imported.</source>
        <translation>Only files whose names end in “.%@” can be imported.</translation>
    </message>
    <message id="PANEL_REPLACE">
        <source>“%@” already exists. Do you want to replace it?</source>
        <translation>“%@” already exists. Do you want to replace it?</translation>
    </message>
    <message id="SPLASH_WAITING">
        <source>Waiting for %@…</source>
        <translation>Waiting for %@…</translation>
    </message>
    <message id="FAILURE_UNKNOWN">
        <source>Cannot be played</source>
        <translation>Cannot be played</translation>
    </message>
    <message id="FAILURE_NO_SUCH_HOST">
        <source>No such server</source>
        <translation>No such server</translation>
    </message>
    <message id="FAILURE_REFUSED">
        <source>Connection refused</source>
        <translation>Connection refused</translation>
    </message>
    <message id="FAILURE_UNREACHABLE">
        <source>Server unreachable</source>
        <translation>Server unreachable</translation>
    </message>
    <message id="FAILURE_TIMED_OUT">
        <source>No answer</source>
        <translation>No answer</translation>
    </message>
    <message id="FAILURE_CERTIFICATE">
        <source>Invalid certificate</source>
        <translation>Invalid certificate</translation>
    </message>
    <message id="FAILURE_NOT_FOUND">
        <source>404 Not Found</source>
        <translation>404 Not Found</translation>
    </message>
    <message id="FAILURE_NOT_ALLOWED">
        <source>Access denied</source>
        <translation>Access denied</translation>
    </message>
    <message id="FAILURE_REJECTED">
        <source>Request rejected</source>
        <translation>Request rejected</translation>
    </message>
    <message id="FAILURE_SERVER_ERROR">
        <source>Server error</source>
        <translation>Server error</translation>
    </message>
    <message id="FAILURE_NOT_A_STREAM">
        <source>Not a stream</source>
        <translation>Not a stream</translation>
    </message>
    <message id="FAILURE_NOT_USABLE">
        <source>Unusable address</source>
        <translation>Unusable address</translation>
    </message>
    <message id="FAILURE_ENDED">
        <source>Stream ended</source>
        <translation>Stream ended</translation>
    </message>
    <message id="FAILURE_SILENT">
        <source>Stream is silent</source>
        <translation>Stream is silent</translation>
    </message>
    <message id="FAILURE_NO_SOUND_OUTPUT">
        <source>No sound output</source>
        <translation>No sound output</translation>
    </message>
    <message id="FAILURE_ENGINE_FAILED">
        <source>Sound engine failed</source>
        <translation>Sound engine failed</translation>
    </message>
</context>
</TS>
