<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name></name>
    <message id="INTERNET_ERROR">
        <source>Sonavel needs an internet connection. Check the connection and start Sonavel again.</source>
        <translation>Sonavel ha bisogno di una connessione a Internet. Controlla la connessione e riavvia Sonavel.</translation>
    </message>
    <message id="BUTTON_YES">
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message id="BUTTON_NO">
        <source>No</source>
        <translation>No</translation>
    </message>
    <message id="ALLERT_TEXT_MESSAGE_QUIT">
        <source>Do you want to quit Sonavel?</source>
        <translation>Vuoi uscire da Sonavel?</translation>
    </message>
    <message id="POP_UP_BUTTON_SELECT_RADIO">
        <source>Choose a station</source>
        <translation>Scegli una stazione</translation>
    </message>
    <message id="POP_UP_BUTTON_SELECT_RADIO_NULL">
        <source>No stations</source>
        <translation>Nessuna stazione</translation>
    </message>
    <message id="BUTTON_CONTINUE">
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
    <message id="BUTTON_ADD">
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message id="BUTTON_EDIT">
        <source>Change</source>
        <translation>Cambia</translation>
    </message>
    <message id="SHOW_EDIT_RADIO_LIST">
        <source>Show Station List</source>
        <translation>Mostra l’elenco delle stazioni</translation>
    </message>
    <message id="CLOSE_EDIT_RADIO_LIST">
        <source>Close Station List</source>
        <translation>Chiudi l’elenco delle stazioni</translation>
    </message>
    <message id="WIN_EDIT_RADIO_LIST">
        <source>Station List</source>
        <translation>Elenco delle stazioni</translation>
    </message>
    <message id="REMOVE_RADIO">
        <source>Remove the station “%@”?</source>
        <translation>Rimuovere la stazione «%@»?</translation>
    </message>
    <message id="REMOVE_RADIO_TO_PLAY">
        <source>“%@” is the chosen station. Stop it and remove it?</source>
        <translation>«%@» è la stazione scelta. Fermarla e rimuoverla?</translation>
    </message>
    <message id="REMOVE_ALL_RADIO_SELECTED">
        <source>Remove the %li selected stations?</source>
        <translation>Rimuovere le %li stazioni selezionate?</translation>
    </message>
    <message id="ERASE_ALL_PREVIOUS_DATA">
        <source>Replace the present stations by those in the file? “No” adds them to the list.</source>
        <translation>Sostituire le stazioni presenti con quelle del file? Con «No» vengono aggiunte all’elenco.</translation>
    </message>
    <message id="LIMIT_IMPORT_DATA">
        <source>The station list is full. The rest of the file was not imported.</source>
        <translation>L’elenco delle stazioni è pieno. Il resto del file non è stato importato.</translation>
    </message>
    <message id="AS_DUPLICATED_DATA">
        <source>Some names in the file were already in the list. Those stations got a number after their name.</source>
        <translation>Alcuni nomi del file erano già nell’elenco. Quelle stazioni hanno ricevuto un numero dopo il nome.</translation>
    </message>
    <message id="STATUS_IMPORTED">
        <source>Stations imported: %li.</source>
        <translation>Stazioni importate: %li.</translation>
    </message>
    <message id="STATUS_FILE_NOT_READ">
        <source>The file could not be read: %@</source>
        <translation>Impossibile leggere il file: %@</translation>
    </message>
    <message id="STATUS_NOTHING_IMPORTED">
        <source>No stations were found in the file.</source>
        <translation>Nel file non è stata trovata nessuna stazione.</translation>
    </message>
    <message id="STATUS_LIST_KEPT">
        <source>The former list was kept as %@.</source>
        <translation>L’elenco precedente è stato conservato come %@.</translation>
    </message>
    <message id="STATUS_LIST_NOT_KEPT">
        <source>The present list could not be kept, so nothing was imported.</source>
        <translation>Non è stato possibile conservare l’elenco presente, quindi nulla è stato importato.</translation>
    </message>
    <message id="WIN_SONAVEL">
        <source>Sonavel</source>
        <translation>Sonavel</translation>
    </message>
    <message id="LABEL_STATION">
        <source>Station</source>
        <translation>Stazione</translation>
    </message>
    <message id="LABEL_VOLUME">
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message id="BUTTON_PLAY">
        <source>Play</source>
        <translation>Riproduci</translation>
    </message>
    <message id="BUTTON_PAUSE">
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message id="BUTTON_STOP">
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message id="BUTTON_MUTE">
        <source>Mute</source>
        <translation>Muto</translation>
    </message>
    <message id="BUTTON_STATION_LIST">
        <source>Station List…</source>
        <translation>Elenco stazioni…</translation>
    </message>
    <message id="HINT_STATION">
        <source>The station to play</source>
        <translation>La stazione da ascoltare</translation>
    </message>
    <message id="HINT_VOLUME">
        <source>How loud it plays</source>
        <translation>Il livello del suono</translation>
    </message>
    <message id="HINT_PLAY">
        <source>Play the chosen station</source>
        <translation>Ascolta la stazione scelta</translation>
    </message>
    <message id="HINT_PAUSE">
        <source>Hold the sound</source>
        <translation>Sospendi il suono</translation>
    </message>
    <message id="HINT_STOP">
        <source>Stop playing and leave the stream</source>
        <translation>Ferma la riproduzione e lascia il flusso</translation>
    </message>
    <message id="HINT_MUTE">
        <source>Silence the sound, or let it be heard again</source>
        <translation>Togli il suono o fallo sentire di nuovo</translation>
    </message>
    <message id="HINT_STATION_LIST">
        <source>Show the list of stations, to add to it or change it</source>
        <translation>Mostra l’elenco delle stazioni per completarlo o cambiarlo</translation>
    </message>
    <message id="WIN_EDIT_DATA">
        <source>Station</source>
        <translation>Stazione</translation>
    </message>
    <message id="BUTTON_CANCEL">
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message id="LABEL_NAME">
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message id="LABEL_ADDRESS">
        <source>Address</source>
        <translation>Indirizzo</translation>
    </message>
    <message id="TOOL_ADD">
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message id="TOOL_EDIT">
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message id="TOOL_REMOVE">
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message id="TOOL_IMPORT">
        <source>Import</source>
        <translation>Importa</translation>
    </message>
    <message id="TOOL_EXPORT">
        <source>Export</source>
        <translation>Esporta</translation>
    </message>
    <message id="HINT_ADD">
        <source>Add a station</source>
        <translation>Aggiungi una stazione</translation>
    </message>
    <message id="HINT_EDIT">
        <source>Change the selected station</source>
        <translation>Cambia la stazione selezionata</translation>
    </message>
    <message id="HINT_REMOVE">
        <source>Remove the selected stations</source>
        <translation>Rimuovi le stazioni selezionate</translation>
    </message>
    <message id="HINT_IMPORT">
        <source>Bring in stations from a file</source>
        <translation>Prendi le stazioni da un file</translation>
    </message>
    <message id="HINT_EXPORT">
        <source>Save all stations to a file</source>
        <translation>Salva tutte le stazioni in un file</translation>
    </message>
    <message id="LIST_EMPTY">
        <source>No stations yet. Add one, or import a list.</source>
        <translation>Ancora nessuna stazione. Aggiungine una o importa un elenco.</translation>
    </message>
    <message id="FIND">
        <source>Find</source>
        <translation>Cerca</translation>
    </message>
    <message id="FIND_PLACEHOLDER">
        <source>Find a name or address</source>
        <translation>Cerca un nome o un indirizzo</translation>
    </message>
    <message id="FIND_NOTHING">
        <source>Not found</source>
        <translation>Non trovato</translation>
    </message>
    <message id="MENU_SONAVEL">
        <source>&amp;Sonavel</source>
        <translation>&amp;Sonavel</translation>
    </message>
    <message id="MENU_PLAYBACK">
        <source>&amp;Playback</source>
        <translation>&amp;Riproduzione</translation>
    </message>
    <message id="MENU_STATIONS">
        <source>S&amp;tations</source>
        <translation>S&amp;tazioni</translation>
    </message>
    <message id="MENU_QUIT">
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message id="MENU_PLAY_PAUSE">
        <source>&amp;Play/Pause</source>
        <translation>&amp;Riproduci/Pausa</translation>
    </message>
    <message id="MENU_STOP">
        <source>&amp;Stop</source>
        <translation>&amp;Ferma</translation>
    </message>
    <message id="MENU_MUTE">
        <source>&amp;Mute</source>
        <translation>&amp;Muto</translation>
    </message>
    <message id="MENU_PREVIOUS">
        <source>P&amp;revious Station</source>
        <translation>Stazione &amp;precedente</translation>
    </message>
    <message id="MENU_NEXT">
        <source>&amp;Next Station</source>
        <translation>Stazione &amp;successiva</translation>
    </message>
    <message id="MENU_ADD">
        <source>&amp;Add…</source>
        <translation>&amp;Aggiungi…</translation>
    </message>
    <message id="MENU_EDIT">
        <source>&amp;Edit…</source>
        <translation>&amp;Modifica…</translation>
    </message>
    <message id="MENU_REMOVE">
        <source>&amp;Remove…</source>
        <translation>&amp;Rimuovi…</translation>
    </message>
    <message id="MENU_IMPORT">
        <source>&amp;Import…</source>
        <translation>&amp;Importa…</translation>
    </message>
    <message id="MENU_EXPORT">
        <source>E&amp;xport…</source>
        <translation>&amp;Esporta…</translation>
    </message>
    <message id="WIN_PREFERENCES">
        <source>Preferences</source>
        <translation>Preferenze</translation>
    </message>
    <message id="CHECK_PLAY_AT_START">
        <source>Play the default station when Sonavel starts</source>
        <translation>Riproduci la stazione predefinita all’avvio di Sonavel</translation>
    </message>
    <message id="CHECK_PLAY_WHEN_CHOSEN">
        <source>Play a station as soon as it is chosen</source>
        <translation>Riproduci una stazione appena viene scelta</translation>
    </message>
    <message id="LABEL_DEFAULT_STATION">
        <source>Default station</source>
        <translation>Stazione predefinita</translation>
    </message>
    <message id="LABEL_DEFAULT_VOLUME">
        <source>Default volume</source>
        <translation>Volume predefinito</translation>
    </message>
    <message id="HINT_DEFAULT_STATION">
        <source>The station that is chosen when Sonavel starts</source>
        <translation>La stazione scelta all’avvio di Sonavel</translation>
    </message>
    <message id="HINT_DEFAULT_VOLUME">
        <source>How loud Sonavel is when it starts</source>
        <translation>Il livello del suono all’avvio di Sonavel</translation>
    </message>
    <message id="BUTTON_CLOSE">
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message id="WIN_UPDATE">
        <source>Software Update</source>
        <translation>Aggiornamento software</translation>
    </message>
    <message id="UPD_NEW_UPDATE_AVIABLE">
        <source>has a new version</source>
        <translation>ha una nuova versione</translation>
    </message>
    <message id="UPD_INFO">
        <source>is available. You have</source>
        <translation>è disponibile. Hai</translation>
    </message>
    <message id="UPDATE_NONE">
        <source>You have the newest version, %@.</source>
        <translation>Hai la versione più recente, %@.</translation>
    </message>
    <message id="UPDATE_NO_ANSWER">
        <source>The server gave no usable answer. Try again later.</source>
        <translation>Il server non ha dato una risposta utilizzabile. Riprova più tardi.</translation>
    </message>
    <message id="BUTTON_DOWNLOAD">
        <source>Download</source>
        <translation>Scarica</translation>
    </message>
    <message id="BUTTON_REMIND">
        <source>Remind Me Later</source>
        <translation>Ricordamelo più tardi</translation>
    </message>
    <message id="RELEASE_NOTES">
        <source>What is new</source>
        <translation>Novità</translation>
    </message>
    <message id="WIN_ABOUT">
        <source>About Sonavel</source>
        <translation>Informazioni su Sonavel</translation>
    </message>
    <message id="ABOUT_VERSION">
        <source>Version %@</source>
        <translation>Versione %@</translation>
    </message>
    <message id="ABOUT_LICENSE">
        <source>Free software under the MIT license</source>
        <translation>Software libero con licenza MIT</translation>
    </message>
    <message id="ABOUT_COPYRIGHT">
        <source>© 2026 The Sonavel developers</source>
        <translation>© 2026 The Sonavel developers</translation>
    </message>
    <message id="MENU_ABOUT">
        <source>&amp;About Sonavel</source>
        <translation>&amp;Informazioni su Sonavel</translation>
    </message>
    <message id="MENU_CHECK_UPDATES">
        <source>&amp;Check for Updates…</source>
        <translation>Cerca &amp;aggiornamenti…</translation>
    </message>
    <message id="MENU_PREFERENCES">
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferenze…</translation>
    </message>
    <message id="NOW_PLAYING">
        <source>Now playing</source>
        <translation>In onda</translation>
    </message>
    <message id="NOW_PLAYING_NOTHING">
        <source>Not playing</source>
        <translation>Nessuna riproduzione</translation>
    </message>
    <message id="NOW_PLAYING_CONNECTING">
        <source>Connecting…</source>
        <translation>Connessione…</translation>
    </message>
    <message id="NOW_PLAYING_BUFFERING">
        <source>Buffering…</source>
        <translation>Caricamento…</translation>
    </message>
    <message id="NOW_PLAYING_UNTITLED">
        <source>Playing</source>
        <translation>In riproduzione</translation>
    </message>
    <message id="NOW_PLAYING_PAUSED">
        <source>Paused</source>
        <translation>In pausa</translation>
    </message>
    <message id="NOW_PLAYING_TRYING_IN">
        <source>%@. Trying again in %li s</source>
        <translation>%@. Riprovo tra %li s</translation>
    </message>
    <message id="NOW_PLAYING_TRYING">
        <source>%@. Trying again…</source>
        <translation>%@. Riprovo…</translation>
    </message>
    <message id="NOTICE_STATIONS_NOT_SAVED">
        <source>The station list could not be saved: %@</source>
        <translation>Non è stato possibile salvare l’elenco delle stazioni: %@</translation>
    </message>
    <message id="NOTICE_PREFERENCES_NOT_SAVED">
        <source>The preferences could not be saved: %@</source>
        <translation>Non è stato possibile salvare le preferenze: %@</translation>
    </message>
    <message id="NOTICE_FILE_NOT_SAVED">
        <source>A file could not be saved: %@</source>
        <translation>Non è stato possibile salvare un file: %@</translation>
    </message>
    <message id="PANEL_IMPORT">
        <source>Import Stations</source>
        <translation>Importa stazioni</translation>
    </message>
    <message id="PANEL_EXPORT">
        <source>Export Stations</source>
        <translation>Esporta le stazioni</translation>
    </message>
    <message id="PANEL_STATION_LISTS">
        <source>Station lists</source>
        <translation>Elenchi di stazioni</translation>
    </message>
    <message id="PANEL_OTHER_KIND">
        <source>Only files whose names end in “.%@” can be imported.</source>
        <translation>Si possono importare solo file il cui nome termina con «.%@».</translation>
    </message>
    <message id="PANEL_REPLACE">
        <source>“%@” already exists. Do you want to replace it?</source>
        <translation>«%@» esiste già. Sostituirlo?</translation>
    </message>
    <message id="SPLASH_WAITING">
        <source>Waiting for %@…</source>
        <translation>In attesa di %@…</translation>
    </message>
    <message id="FAILURE_UNKNOWN">
        <source>Cannot be played</source>
        <translation>Non riproducibile</translation>
    </message>
    <message id="FAILURE_NO_SUCH_HOST">
        <source>No such server</source>
        <translation>Server inesistente</translation>
    </message>
    <message id="FAILURE_REFUSED">
        <source>Connection refused</source>
        <translation>Connessione rifiutata</translation>
    </message>
    <message id="FAILURE_UNREACHABLE">
        <source>Server unreachable</source>
        <translation>Server irraggiungibile</translation>
    </message>
    <message id="FAILURE_TIMED_OUT">
        <source>No answer</source>
        <translation>Nessuna risposta</translation>
    </message>
    <message id="FAILURE_CERTIFICATE">
        <source>Invalid certificate</source>
        <translation>Certificato non valido</translation>
    </message>
    <message id="FAILURE_NOT_FOUND">
        <source>404 Not Found</source>
        <translation>404 Non trovato</translation>
    </message>
    <message id="FAILURE_NOT_ALLOWED">
        <source>Access denied</source>
        <translation>Accesso negato</translation>
    </message>
    <message id="FAILURE_REJECTED">
        <source>Request rejected</source>
        <translation>Richiesta respinta</translation>
    </message>
    <message id="FAILURE_SERVER_ERROR">
        <source>Server error</source>
        <translation>Errore del server</translation>
    </message>
    <message id="FAILURE_NOT_A_STREAM">
        <source>Not a stream</source>
        <translation>Non è un flusso</translation>
    </message>
    <message id="FAILURE_NOT_USABLE">
        <source>Unusable address</source>
        <translation>Indirizzo inutilizzabile</translation>
    </message>
    <message id="FAILURE_ENDED">
        <source>Stream ended</source>
        <translation>Il flusso è finito</translation>
    </message>
    <message id="FAILURE_SILENT">
        <source>Stream is silent</source>
        <translation>Il flusso è muto</translation>
    </message>
    <message id="FAILURE_NO_SOUND_OUTPUT">
        <source>No sound output</source>
        <translation>Nessuna uscita audio</translation>
    </message>
    <message id="FAILURE_ENGINE_FAILED">
        <source>Sound engine failed</source>
        <translation>Motore audio guasto</translation>
    </message>
</context>
</TS>
