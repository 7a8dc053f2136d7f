<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name></name>
    <message id="INTERNET_ERROR">
        <source>Sonavel needs an internet connection. Check the connection and start Sonavel again.</source>
        <translation>Sonavel braucht eine Internetverbindung. Bitte prüfen Sie die Verbindung und starten Sie Sonavel neu.</translation>
    </message>
    <message id="BUTTON_YES">
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message id="BUTTON_NO">
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message id="ALLERT_TEXT_MESSAGE_QUIT">
        <source>Do you want to quit Sonavel?</source>
        <translation>Möchten Sie Sonavel beenden?</translation>
    </message>
    <message id="POP_UP_BUTTON_SELECT_RADIO">
        <source>Choose a station</source>
        <translation>Sender wählen</translation>
    </message>
    <message id="POP_UP_BUTTON_SELECT_RADIO_NULL">
        <source>No stations</source>
        <translation>Keine Sender</translation>
    </message>
    <message id="BUTTON_CONTINUE">
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message id="BUTTON_ADD">
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message id="BUTTON_EDIT">
        <source>Change</source>
        <translation>Ändern</translation>
    </message>
    <message id="SHOW_EDIT_RADIO_LIST">
        <source>Show Station List</source>
        <translation>Senderliste zeigen</translation>
    </message>
    <message id="CLOSE_EDIT_RADIO_LIST">
        <source>Close Station List</source>
        <translation>Senderliste schließen</translation>
    </message>
    <message id="WIN_EDIT_RADIO_LIST">
        <source>Station List</source>
        <translation>Senderliste</translation>
    </message>
    <message id="REMOVE_RADIO">
        <source>Remove the station “%@”?</source>
        <translation>Den Sender „%@“ entfernen?</translation>
    </message>
    <message id="REMOVE_RADIO_TO_PLAY">
        <source>“%@” is the chosen station. Stop it and remove it?</source>
        <translation>„%@“ ist der gewählte Sender. Anhalten und entfernen?</translation>
    </message>
    <message id="REMOVE_ALL_RADIO_SELECTED">
        <source>Remove the %li selected stations?</source>
        <translation>Die %li ausgewählten Sender entfernen?</translation>
    </message>
    <message id="ERASE_ALL_PREVIOUS_DATA">
        <source>Replace the present stations by those in the file? “No” adds them to the list.</source>
        <translation>Die vorhandenen Sender durch die aus der Datei ersetzen? Bei „Nein“ kommen diese zur Liste hinzu.</translation>
    </message>
    <message id="LIMIT_IMPORT_DATA">
        <source>The station list is full. The rest of the file was not imported.</source>
        <translation>Die Senderliste ist voll. Der Rest der Datei wurde nicht importiert.</translation>
    </message>
    <message id="AS_DUPLICATED_DATA">
        <source>Some names in the file were already in the list. Those stations got a number after their name.</source>
        <translation>Einige Namen aus der Datei standen schon in der Liste. Diese Sender haben eine Nummer hinter ihrem Namen bekommen.</translation>
    </message>
    <message id="STATUS_IMPORTED">
        <source>Stations imported: %li.</source>
        <translation>Importierte Sender: %li.</translation>
    </message>
    <message id="STATUS_FILE_NOT_READ">
        <source>The file could not be read: %@</source>
        <translation>Die Datei konnte nicht gelesen werden: %@</translation>
    </message>
    <message id="STATUS_NOTHING_IMPORTED">
        <source>No stations were found in the file.</source>
        <translation>In der Datei wurden keine Sender gefunden.</translation>
    </message>
    <message id="STATUS_LIST_KEPT">
        <source>The former list was kept as %@.</source>
        <translation>Die bisherige Liste wurde als %@ aufbewahrt.</translation>
    </message>
    <message id="STATUS_LIST_NOT_KEPT">
        <source>The present list could not be kept, so nothing was imported.</source>
        <translation>Die vorhandene Liste konnte nicht aufbewahrt werden; deshalb wurde nichts importiert.</translation>
    </message>
    <message id="WIN_SONAVEL">
        <source>Sonavel</source>
        <translation>Sonavel</translation>
    </message>
    <message id="LABEL_STATION">
        <source>Station</source>
        <translation>Sender</translation>
    </message>
    <message id="LABEL_VOLUME">
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message id="BUTTON_PLAY">
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message id="BUTTON_PAUSE">
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message id="BUTTON_STOP">
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message id="BUTTON_MUTE">
        <source>Mute</source>
        <translation>Stumm</translation>
    </message>
    <message id="BUTTON_STATION_LIST">
        <source>Station List…</source>
        <translation>Senderliste…</translation>
    </message>
    <message id="HINT_STATION">
        <source>The station to play</source>
        <translation>Der Sender, der spielen soll</translation>
    </message>
    <message id="HINT_VOLUME">
        <source>How loud it plays</source>
        <translation>Wie laut er spielt</translation>
    </message>
    <message id="HINT_PLAY">
        <source>Play the chosen station</source>
        <translation>Den gewählten Sender abspielen</translation>
    </message>
    <message id="HINT_PAUSE">
        <source>Hold the sound</source>
        <translation>Den Ton anhalten</translation>
    </message>
    <message id="HINT_STOP">
        <source>Stop playing and leave the stream</source>
        <translation>Nicht weiter abspielen und den Stream verlassen</translation>
    </message>
    <message id="HINT_MUTE">
        <source>Silence the sound, or let it be heard again</source>
        <translation>Den Ton stumm schalten oder wieder hören lassen</translation>
    </message>
    <message id="HINT_STATION_LIST">
        <source>Show the list of stations, to add to it or change it</source>
        <translation>Die Liste der Sender zeigen, um sie zu ergänzen oder zu ändern</translation>
    </message>
    <message id="WIN_EDIT_DATA">
        <source>Station</source>
        <translation>Sender</translation>
    </message>
    <message id="BUTTON_CANCEL">
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message id="LABEL_NAME">
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message id="LABEL_ADDRESS">
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message id="TOOL_ADD">
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message id="TOOL_EDIT">
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message id="TOOL_REMOVE">
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message id="TOOL_IMPORT">
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message id="TOOL_EXPORT">
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message id="HINT_ADD">
        <source>Add a station</source>
        <translation>Einen Sender hinzufügen</translation>
    </message>
    <message id="HINT_EDIT">
        <source>Change the selected station</source>
        <translation>Den ausgewählten Sender ändern</translation>
    </message>
    <message id="HINT_REMOVE">
        <source>Remove the selected stations</source>
        <translation>Die ausgewählten Sender entfernen</translation>
    </message>
    <message id="HINT_IMPORT">
        <source>Bring in stations from a file</source>
        <translation>Sender aus einer Datei übernehmen</translation>
    </message>
    <message id="HINT_EXPORT">
        <source>Save all stations to a file</source>
        <translation>Alle Sender in eine Datei sichern</translation>
    </message>
    <message id="LIST_EMPTY">
        <source>No stations yet. Add one, or import a list.</source>
        <translation>Noch keine Sender. Fügen Sie einen hinzu oder importieren Sie eine Liste.</translation>
    </message>
    <message id="FIND">
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message id="FIND_PLACEHOLDER">
        <source>Find a name or address</source>
        <translation>Name oder Adresse suchen</translation>
    </message>
    <message id="FIND_NOTHING">
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message id="MENU_SONAVEL">
        <source>&amp;Sonavel</source>
        <translation>&amp;Sonavel</translation>
    </message>
    <message id="MENU_PLAYBACK">
        <source>&amp;Playback</source>
        <translation>&amp;Wiedergabe</translation>
    </message>
    <message id="MENU_STATIONS">
        <source>S&amp;tations</source>
        <translation>Se&amp;nder</translation>
    </message>
    <message id="MENU_QUIT">
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message id="MENU_PLAY_PAUSE">
        <source>&amp;Play/Pause</source>
        <translation>&amp;Abspielen/Pause</translation>
    </message>
    <message id="MENU_STOP">
        <source>&amp;Stop</source>
        <translation>S&amp;topp</translation>
    </message>
    <message id="MENU_MUTE">
        <source>&amp;Mute</source>
        <translation>Stu&amp;mm</translation>
    </message>
    <message id="MENU_PREVIOUS">
        <source>P&amp;revious Station</source>
        <translation>&amp;Voriger Sender</translation>
    </message>
    <message id="MENU_NEXT">
        <source>&amp;Next Station</source>
        <translation>&amp;Nächster Sender</translation>
    </message>
    <message id="MENU_ADD">
        <source>&amp;Add…</source>
        <translation>&amp;Hinzufügen…</translation>
    </message>
    <message id="MENU_EDIT">
        <source>&amp;Edit…</source>
        <translation>&amp;Bearbeiten…</translation>
    </message>
    <message id="MENU_REMOVE">
        <source>&amp;Remove…</source>
        <translation>&amp;Entfernen…</translation>
    </message>
    <message id="MENU_IMPORT">
        <source>&amp;Import…</source>
        <translation>&amp;Importieren…</translation>
    </message>
    <message id="MENU_EXPORT">
        <source>E&amp;xport…</source>
        <translation>E&amp;xportieren…</translation>
    </message>
    <message id="WIN_PREFERENCES">
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message id="CHECK_PLAY_AT_START">
        <source>Play the default station when Sonavel starts</source>
        <translation>Beim Start von Sonavel den Standardsender abspielen</translation>
    </message>
    <message id="CHECK_PLAY_WHEN_CHOSEN">
        <source>Play a station as soon as it is chosen</source>
        <translation>Einen Sender abspielen, sobald er gewählt ist</translation>
    </message>
    <message id="LABEL_DEFAULT_STATION">
        <source>Default station</source>
        <translation>Standardsender</translation>
    </message>
    <message id="LABEL_DEFAULT_VOLUME">
        <source>Default volume</source>
        <translation>Standardlautstärke</translation>
    </message>
    <message id="HINT_DEFAULT_STATION">
        <source>The station that is chosen when Sonavel starts</source>
        <translation>Der Sender, der beim Start von Sonavel gewählt ist</translation>
    </message>
    <message id="HINT_DEFAULT_VOLUME">
        <source>How loud Sonavel is when it starts</source>
        <translation>Wie laut Sonavel beim Start ist</translation>
    </message>
    <message id="BUTTON_CLOSE">
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message id="WIN_UPDATE">
        <source>Software Update</source>
        <translation>Softwareaktualisierung</translation>
    </message>
    <message id="UPD_NEW_UPDATE_AVIABLE">
        <source>has a new version</source>
        <translation>gibt es in einer neuen Version</translation>
    </message>
    <message id="UPD_INFO">
        <source>is available. You have</source>
        <translation>ist verfügbar. Sie haben</translation>
    </message>
    <message id="UPDATE_NONE">
        <source>You have the newest version, %@.</source>
        <translation>Sie haben die neueste Version, %@.</translation>
    </message>
    <message id="UPDATE_NO_ANSWER">
        <source>The server gave no usable answer. Try again later.</source>
        <translation>Der Server hat keine brauchbare Antwort gegeben. Bitte versuchen Sie es später noch einmal.</translation>
    </message>
    <message id="BUTTON_DOWNLOAD">
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
    <message id="BUTTON_REMIND">
        <source>Remind Me Later</source>
        <translation>Später erinnern</translation>
    </message>
    <message id="RELEASE_NOTES">
        <source>What is new</source>
        <translation>Was neu ist</translation>
    </message>
    <message id="WIN_ABOUT">
        <source>About Sonavel</source>
        <translation>Über Sonavel</translation>
    </message>
    <message id="ABOUT_VERSION">
        <source>Version %@</source>
        <translation>Version %@</translation>
    </message>
    <message id="ABOUT_LICENSE">
        <source>Free software under the MIT license</source>
        <translation>Freie Software unter der MIT-Lizenz</translation>
    </message>
    <message id="ABOUT_COPYRIGHT">
        <source>© 2026 The Sonavel developers</source>
        <translation>© 2026 The Sonavel developers</translation>
    </message>
    <message id="MENU_ABOUT">
        <source>&amp;About Sonavel</source>
        <translation>&amp;Über Sonavel</translation>
    </message>
    <message id="MENU_CHECK_UPDATES">
        <source>&amp;Check for Updates…</source>
        <translation>Nach &amp;Aktualisierungen suchen…</translation>
    </message>
    <message id="MENU_PREFERENCES">
        <source>&amp;Preferences…</source>
        <translation>&amp;Einstellungen…</translation>
    </message>
    <message id="NOW_PLAYING">
        <source>Now playing</source>
        <translation>Jetzt läuft</translation>
    </message>
    <message id="NOW_PLAYING_NOTHING">
        <source>Not playing</source>
        <translation>Keine Wiedergabe</translation>
    </message>
    <message id="NOW_PLAYING_CONNECTING">
        <source>Connecting…</source>
        <translation>Verbinden…</translation>
    </message>
    <message id="NOW_PLAYING_BUFFERING">
        <source>Buffering…</source>
        <translation>Puffern…</translation>
    </message>
    <message id="NOW_PLAYING_UNTITLED">
        <source>Playing</source>
        <translation>Wiedergabe läuft</translation>
    </message>
    <message id="NOW_PLAYING_PAUSED">
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message id="NOW_PLAYING_TRYING_IN">
        <source>%@. Trying again in %li s</source>
        <translation>%@. Neuer Versuch in %li s</translation>
    </message>
    <message id="NOW_PLAYING_TRYING">
        <source>%@. Trying again…</source>
        <translation>%@. Neuer Versuch…</translation>
    </message>
    <message id="NOTICE_STATIONS_NOT_SAVED">
        <source>The station list could not be saved: %@</source>
        <translation>Die Senderliste konnte nicht gesichert werden: %@</translation>
    </message>
    <message id="NOTICE_PREFERENCES_NOT_SAVED">
        <source>The preferences could not be saved: %@</source>
        <translation>Die Einstellungen konnten nicht gesichert werden: %@</translation>
    </message>
    <message id="NOTICE_FILE_NOT_SAVED">
        <source>A file could not be saved: %@</source>
        <translation>Eine Datei konnte nicht gesichert werden: %@</translation>
    </message>
    <message id="PANEL_IMPORT">
        <source>Import Stations</source>
        <translation>Sender importieren</translation>
    </message>
    <message id="PANEL_EXPORT">
        <source>Export Stations</source>
        <translation>Sender exportieren</translation>
    </message>
    <message id="PANEL_STATION_LISTS">
        <source>Station lists</source>
        <translation>Senderlisten</translation>
    </message>
    <message id="PANEL_OTHER_KIND">
        <source>Only files whose names end in “.%@” can be imported.</source>
        <translation>Nur Dateien, deren Name auf „.%@“ endet, können importiert werden.</translation>
    </message>
    <message id="PANEL_REPLACE">
        <source>“%@” already exists. Do you want to replace it?</source>
        <translation>„%@“ ist bereits vorhanden. Möchten Sie die Datei ersetzen?</translation>
    </message>
    <message id="SPLASH_WAITING">
        <source>Waiting for %@…</source>
        <translation>Warten auf %@…</translation>
    </message>
    <message id="FAILURE_UNKNOWN">
        <source>Cannot be played</source>
        <translation>Nicht abspielbar</translation>
    </message>
    <message id="FAILURE_NO_SUCH_HOST">
        <source>No such server</source>
        <translation>Server unbekannt</translation>
    </message>
    <message id="FAILURE_REFUSED">
        <source>Connection refused</source>
        <translation>Server lehnt ab</translation>
    </message>
    <message id="FAILURE_UNREACHABLE">
        <source>Server unreachable</source>
        <translation>Nicht erreichbar</translation>
    </message>
    <message id="FAILURE_TIMED_OUT">
        <source>No answer</source>
        <translation>Keine Antwort</translation>
    </message>
    <message id="FAILURE_CERTIFICATE">
        <source>Invalid certificate</source>
        <translation>Zertifikat ungültig</translation>
    </message>
    <message id="FAILURE_NOT_FOUND">
        <source>404 Not Found</source>
        <translation>404 Nicht gefunden</translation>
    </message>
    <message id="FAILURE_NOT_ALLOWED">
        <source>Access denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message id="FAILURE_REJECTED">
        <source>Request rejected</source>
        <translation>Anfrage abgelehnt</translation>
    </message>
    <message id="FAILURE_SERVER_ERROR">
        <source>Server error</source>
        <translation>Fehler beim Server</translation>
    </message>
    <message id="FAILURE_NOT_A_STREAM">
        <source>Not a stream</source>
        <translation>Kein Stream</translation>
    </message>
    <message id="FAILURE_NOT_USABLE">
        <source>Unusable address</source>
        <translation>Adresse ungültig</translation>
    </message>
    <message id="FAILURE_ENDED">
        <source>Stream ended</source>
        <translation>Stream ist zu Ende</translation>
    </message>
    <message id="FAILURE_SILENT">
        <source>Stream is silent</source>
        <translation>Stream ist stumm</translation>
    </message>
    <message id="FAILURE_NO_SOUND_OUTPUT">
        <source>No sound output</source>
        <translation>Keine Tonausgabe</translation>
    </message>
    <message id="FAILURE_ENGINE_FAILED">
        <source>Sound engine failed</source>
        <translation>Tonmodul gestört</translation>
    </message>
</context>
</TS>
