<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name></name>
    <message id="INTERNET_ERROR">
        <source>Sonavel needs an internet connection. Check the connection and start Sonavel again.</source>
        <translation>Sonavel necesita una conexión a Internet. Compruebe la conexión y vuelva a iniciar Sonavel.</translation>
    </message>
    <message id="BUTTON_YES">
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message id="BUTTON_NO">
        <source>No</source>
        <translation>No</translation>
    </message>
    <message id="ALLERT_TEXT_MESSAGE_QUIT">
        <source>Do you want to quit Sonavel?</source>
        <translation>¿Quiere salir de Sonavel?</translation>
    </message>
    <message id="POP_UP_BUTTON_SELECT_RADIO">
        <source>Choose a station</source>
        <translation>Elija una emisora</translation>
    </message>
    <message id="POP_UP_BUTTON_SELECT_RADIO_NULL">
        <source>No stations</source>
        <translation>Ninguna emisora</translation>
    </message>
    <message id="BUTTON_CONTINUE">
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message id="BUTTON_ADD">
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message id="BUTTON_EDIT">
        <source>Change</source>
        <translation>Cambiar</translation>
    </message>
    <message id="SHOW_EDIT_RADIO_LIST">
        <source>Show Station List</source>
        <translation>Mostrar la lista de emisoras</translation>
    </message>
    <message id="CLOSE_EDIT_RADIO_LIST">
        <source>Close Station List</source>
        <translation>Cerrar la lista de emisoras</translation>
    </message>
    <message id="WIN_EDIT_RADIO_LIST">
        <source>Station List</source>
        <translation>Lista de emisoras</translation>
    </message>
    <message id="REMOVE_RADIO">
        <source>Remove the station “%@”?</source>
        <translation>¿Quitar la emisora «%@»?</translation>
    </message>
    <message id="REMOVE_RADIO_TO_PLAY">
        <source>“%@” is the chosen station. Stop it and remove it?</source>
        <translation>«%@» es la emisora elegida. ¿Detenerla y quitarla?</translation>
    </message>
    <message id="REMOVE_ALL_RADIO_SELECTED">
        <source>Remove the %li selected stations?</source>
        <translation>¿Quitar las %li emisoras seleccionadas?</translation>
    </message>
    <message id="ERASE_ALL_PREVIOUS_DATA">
        <source>Replace the present stations by those in the file? “No” adds them to the list.</source>
        <translation>¿Sustituir las emisoras actuales por las del archivo? Con «No» se añaden a la lista.</translation>
    </message>
    <message id="LIMIT_IMPORT_DATA">
        <source>The station list is full. The rest of the file was not imported.</source>
        <translation>La lista de emisoras está llena. El resto del archivo no se ha importado.</translation>
    </message>
    <message id="AS_DUPLICATED_DATA">
        <source>Some names in the file were already in the list. Those stations got a number after their name.</source>
        <translation>Algunos nombres del archivo ya estaban en la lista. Esas emisoras han recibido un número detrás del nombre.</translation>
    </message>
    <message id="STATUS_IMPORTED">
        <source>Stations imported: %li.</source>
        <translation>Emisoras importadas: %li.</translation>
    </message>
    <message id="STATUS_FILE_NOT_READ">
        <source>The file could not be read: %@</source>
        <translation>No se ha podido leer el archivo: %@</translation>
    </message>
    <message id="STATUS_NOTHING_IMPORTED">
        <source>No stations were found in the file.</source>
        <translation>No se ha encontrado ninguna emisora en el archivo.</translation>
    </message>
    <message id="STATUS_LIST_KEPT">
        <source>The former list was kept as %@.</source>
        <translation>La lista anterior se ha conservado como %@.</translation>
    </message>
    <message id="STATUS_LIST_NOT_KEPT">
        <source>The present list could not be kept, so nothing was imported.</source>
        <translation>No se ha podido conservar la lista actual, así que no se ha importado nada.</translation>
    </message>
    <message id="WIN_SONAVEL">
        <source>Sonavel</source>
        <translation>Sonavel</translation>
    </message>
    <message id="LABEL_STATION">
        <source>Station</source>
        <translation>Emisora</translation>
    </message>
    <message id="LABEL_VOLUME">
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message id="BUTTON_PLAY">
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message id="BUTTON_PAUSE">
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message id="BUTTON_STOP">
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message id="BUTTON_MUTE">
        <source>Mute</source>
        <translation>Silenciar</translation>
    </message>
    <message id="BUTTON_STATION_LIST">
        <source>Station List…</source>
        <translation>Lista de emisoras…</translation>
    </message>
    <message id="HINT_STATION">
        <source>The station to play</source>
        <translation>La emisora que se va a escuchar</translation>
    </message>
    <message id="HINT_VOLUME">
        <source>How loud it plays</source>
        <translation>El nivel del sonido</translation>
    </message>
    <message id="HINT_PLAY">
        <source>Play the chosen station</source>
        <translation>Escuchar la emisora elegida</translation>
    </message>
    <message id="HINT_PAUSE">
        <source>Hold the sound</source>
        <translation>Suspender el sonido</translation>
    </message>
    <message id="HINT_STOP">
        <source>Stop playing and leave the stream</source>
        <translation>Dejar de reproducir y abandonar la emisión</translation>
    </message>
    <message id="HINT_MUTE">
        <source>Silence the sound, or let it be heard again</source>
        <translation>Quitar el sonido o volver a oírlo</translation>
    </message>
    <message id="HINT_STATION_LIST">
        <source>Show the list of stations, to add to it or change it</source>
        <translation>Mostrar la lista de emisoras para completarla o cambiarla</translation>
    </message>
    <message id="WIN_EDIT_DATA">
        <source>Station</source>
        <translation>Emisora</translation>
    </message>
    <message id="BUTTON_CANCEL">
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message id="LABEL_NAME">
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message id="LABEL_ADDRESS">
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message id="TOOL_ADD">
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message id="TOOL_EDIT">
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message id="TOOL_REMOVE">
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message id="TOOL_IMPORT">
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message id="TOOL_EXPORT">
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message id="HINT_ADD">
        <source>Add a station</source>
        <translation>Añadir una emisora</translation>
    </message>
    <message id="HINT_EDIT">
        <source>Change the selected station</source>
        <translation>Cambiar la emisora seleccionada</translation>
    </message>
    <message id="HINT_REMOVE">
        <source>Remove the selected stations</source>
        <translation>Quitar las emisoras seleccionadas</translation>
    </message>
    <message id="HINT_IMPORT">
        <source>Bring in stations from a file</source>
        <translation>Traer emisoras de un archivo</translation>
    </message>
    <message id="HINT_EXPORT">
        <source>Save all stations to a file</source>
        <translation>Guardar todas las emisoras en un archivo</translation>
    </message>
    <message id="LIST_EMPTY">
        <source>No stations yet. Add one, or import a list.</source>
        <translation>Todavía no hay emisoras. Añada una o importe una lista.</translation>
    </message>
    <message id="FIND">
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message id="FIND_PLACEHOLDER">
        <source>Find a name or address</source>
        <translation>Buscar un nombre o una dirección</translation>
    </message>
    <message id="FIND_NOTHING">
        <source>Not found</source>
        <translation>No encontrado</translation>
    </message>
    <message id="MENU_SONAVEL">
        <source>&amp;Sonavel</source>
        <translation>&amp;Sonavel</translation>
    </message>
    <message id="MENU_PLAYBACK">
        <source>&amp;Playback</source>
        <translation>&amp;Reproducción</translation>
    </message>
    <message id="MENU_STATIONS">
        <source>S&amp;tations</source>
        <translation>&amp;Emisoras</translation>
    </message>
    <message id="MENU_QUIT">
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message id="MENU_PLAY_PAUSE">
        <source>&amp;Play/Pause</source>
        <translation>&amp;Reproducir/Pausa</translation>
    </message>
    <message id="MENU_STOP">
        <source>&amp;Stop</source>
        <translation>&amp;Parar</translation>
    </message>
    <message id="MENU_MUTE">
        <source>&amp;Mute</source>
        <translation>Si&amp;lenciar</translation>
    </message>
    <message id="MENU_PREVIOUS">
        <source>P&amp;revious Station</source>
        <translation>Emisora &amp;anterior</translation>
    </message>
    <message id="MENU_NEXT">
        <source>&amp;Next Station</source>
        <translation>Emisora &amp;siguiente</translation>
    </message>
    <message id="MENU_ADD">
        <source>&amp;Add…</source>
        <translation>&amp;Añadir…</translation>
    </message>
    <message id="MENU_EDIT">
        <source>&amp;Edit…</source>
        <translation>&amp;Editar…</translation>
    </message>
    <message id="MENU_REMOVE">
        <source>&amp;Remove…</source>
        <translation>&amp;Quitar…</translation>
    </message>
    <message id="MENU_IMPORT">
        <source>&amp;Import…</source>
        <translation>&amp;Importar…</translation>
    </message>
    <message id="MENU_EXPORT">
        <source>E&amp;xport…</source>
        <translation>E&amp;xportar…</translation>
    </message>
    <message id="WIN_PREFERENCES">
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message id="CHECK_PLAY_AT_START">
        <source>Play the default station when Sonavel starts</source>
        <translation>Reproducir la emisora predeterminada al iniciar Sonavel</translation>
    </message>
    <message id="CHECK_PLAY_WHEN_CHOSEN">
        <source>Play a station as soon as it is chosen</source>
        <translation>Reproducir una emisora en cuanto se elige</translation>
    </message>
    <message id="LABEL_DEFAULT_STATION">
        <source>Default station</source>
        <translation>Emisora predeterminada</translation>
    </message>
    <message id="LABEL_DEFAULT_VOLUME">
        <source>Default volume</source>
        <translation>Volumen predeterminado</translation>
    </message>
    <message id="HINT_DEFAULT_STATION">
        <source>The station that is chosen when Sonavel starts</source>
        <translation>La emisora que está elegida al iniciar Sonavel</translation>
    </message>
    <message id="HINT_DEFAULT_VOLUME">
        <source>How loud Sonavel is when it starts</source>
        <translation>El nivel del sonido al iniciar Sonavel</translation>
    </message>
    <message id="BUTTON_CLOSE">
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message id="WIN_UPDATE">
        <source>Software Update</source>
        <translation>Actualización de software</translation>
    </message>
    <message id="UPD_NEW_UPDATE_AVIABLE">
        <source>has a new version</source>
        <translation>tiene una versión nueva</translation>
    </message>
    <message id="UPD_INFO">
        <source>is available. You have</source>
        <translation>está disponible. Usted tiene</translation>
    </message>
    <message id="UPDATE_NONE">
        <source>You have the newest version, %@.</source>
        <translation>Tiene la versión más reciente, %@.</translation>
    </message>
    <message id="UPDATE_NO_ANSWER">
        <source>The server gave no usable answer. Try again later.</source>
        <translation>El servidor no ha dado una respuesta utilizable. Vuelva a intentarlo más tarde.</translation>
    </message>
    <message id="BUTTON_DOWNLOAD">
        <source>Download</source>
        <translation>Descargar</translation>
    </message>
    <message id="BUTTON_REMIND">
        <source>Remind Me Later</source>
        <translation>Recordármelo más tarde</translation>
    </message>
    <message id="RELEASE_NOTES">
        <source>What is new</source>
        <translation>Novedades</translation>
    </message>
    <message id="WIN_ABOUT">
        <source>About Sonavel</source>
        <translation>Acerca de Sonavel</translation>
    </message>
    <message id="ABOUT_VERSION">
        <source>Version %@</source>
        <translation>Versión %@</translation>
    </message>
    <message id="ABOUT_LICENSE">
        <source>Free software under the MIT license</source>
        <translation>Software libre con licencia MIT</translation>
    </message>
    <message id="ABOUT_COPYRIGHT">
        <source>© 2026 The Sonavel developers</source>
        <translation>© 2026 The Sonavel developers</translation>
    </message>
    <message id="MENU_ABOUT">
        <source>&amp;About Sonavel</source>
        <translation>&amp;Acerca de Sonavel</translation>
    </message>
    <message id="MENU_CHECK_UPDATES">
        <source>&amp;Check for Updates…</source>
        <translation>&amp;Buscar actualizaciones…</translation>
    </message>
    <message id="MENU_PREFERENCES">
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferencias…</translation>
    </message>
    <message id="NOW_PLAYING">
        <source>Now playing</source>
        <translation>Suena ahora</translation>
    </message>
    <message id="NOW_PLAYING_NOTHING">
        <source>Not playing</source>
        <translation>Sin reproducción</translation>
    </message>
    <message id="NOW_PLAYING_CONNECTING">
        <source>Connecting…</source>
        <translation>Conectando…</translation>
    </message>
    <message id="NOW_PLAYING_BUFFERING">
        <source>Buffering…</source>
        <translation>Cargando…</translation>
    </message>
    <message id="NOW_PLAYING_UNTITLED">
        <source>Playing</source>
        <translation>En reproducción</translation>
    </message>
    <message id="NOW_PLAYING_PAUSED">
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message id="NOW_PLAYING_TRYING_IN">
        <source>%@. Trying again in %li s</source>
        <translation>%@. Reintento en %li s</translation>
    </message>
    <message id="NOW_PLAYING_TRYING">
        <source>%@. Trying again…</source>
        <translation>%@. Reintentando…</translation>
    </message>
    <message id="NOTICE_STATIONS_NOT_SAVED">
        <source>The station list could not be saved: %@</source>
        <translation>No se ha podido guardar la lista de emisoras: %@</translation>
    </message>
    <message id="NOTICE_PREFERENCES_NOT_SAVED">
        <source>The preferences could not be saved: %@</source>
        <translation>No se han podido guardar las preferencias: %@</translation>
    </message>
    <message id="NOTICE_FILE_NOT_SAVED">
        <source>A file could not be saved: %@</source>
        <translation>No se ha podido guardar un archivo: %@</translation>
    </message>
    <message id="PANEL_IMPORT">
        <source>Import Stations</source>
        <translation>Importar emisoras</translation>
    </message>
    <message id="PANEL_EXPORT">
        <source>Export Stations</source>
        <translation>Exportar las emisoras</translation>
    </message>
    <message id="PANEL_STATION_LISTS">
        <source>Station lists</source>
        <translation>Listas de emisoras</translation>
    </message>
    <message id="PANEL_OTHER_KIND">
        <source>Only files whose names end in “.%@” can be imported.</source>
        <translation>Solo se pueden importar archivos cuyo nombre termine en «.%@».</translation>
    </message>
    <message id="PANEL_REPLACE">
        <source>“%@” already exists. Do you want to replace it?</source>
        <translation>«%@» ya existe. ¿Desea reemplazarlo?</translation>
    </message>
    <message id="SPLASH_WAITING">
        <source>Waiting for %@…</source>
        <translation>Esperando a %@…</translation>
    </message>
    <message id="FAILURE_UNKNOWN">
        <source>Cannot be played</source>
        <translation>No reproducible</translation>
    </message>
    <message id="FAILURE_NO_SUCH_HOST">
        <source>No such server</source>
        <translation>Servidor inexistente</translation>
    </message>
    <message id="FAILURE_REFUSED">
        <source>Connection refused</source>
        <translation>Conexión rechazada</translation>
    </message>
    <message id="FAILURE_UNREACHABLE">
        <source>Server unreachable</source>
        <translation>Servidor inaccesible</translation>
    </message>
    <message id="FAILURE_TIMED_OUT">
        <source>No answer</source>
        <translation>Sin respuesta</translation>
    </message>
    <message id="FAILURE_CERTIFICATE">
        <source>Invalid certificate</source>
        <translation>Certificado no válido</translation>
    </message>
    <message id="FAILURE_NOT_FOUND">
        <source>404 Not Found</source>
        <translation>404 No encontrado</translation>
    </message>
    <message id="FAILURE_NOT_ALLOWED">
        <source>Access denied</source>
        <translation>Acceso denegado</translation>
    </message>
    <message id="FAILURE_REJECTED">
        <source>Request rejected</source>
        <translation>Petición rechazada</translation>
    </message>
    <message id="FAILURE_SERVER_ERROR">
        <source>Server error</source>
        <translation>Error del servidor</translation>
    </message>
    <message id="FAILURE_NOT_A_STREAM">
        <source>Not a stream</source>
        <translation>No es una emisión</translation>
    </message>
    <message id="FAILURE_NOT_USABLE">
        <source>Unusable address</source>
        <translation>Dirección no válida</translation>
    </message>
    <message id="FAILURE_ENDED">
        <source>Stream ended</source>
        <translation>Emisión terminada</translation>
    </message>
    <message id="FAILURE_SILENT">
        <source>Stream is silent</source>
        <translation>Emisión en silencio</translation>
    </message>
    <message id="FAILURE_NO_SOUND_OUTPUT">
        <source>No sound output</source>
        <translation>Sin salida de sonido</translation>
    </message>
    <message id="FAILURE_ENGINE_FAILED">
        <source>Sound engine failed</source>
        <translation>Falló el motor de sonido</translation>
    </message>
</context>
</TS>
