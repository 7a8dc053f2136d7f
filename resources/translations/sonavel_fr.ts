<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name></name>
    <message id="INTERNET_ERROR">
        <source>Sonavel needs an internet connection. Check the connection and start Sonavel again.</source>
        <translation>Sonavel a besoin d’une connexion à Internet. Vérifiez la connexion et relancez Sonavel.</translation>
    </message>
    <message id="BUTTON_YES">
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message id="BUTTON_NO">
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message id="ALLERT_TEXT_MESSAGE_QUIT">
        <source>Do you want to quit Sonavel?</source>
        <translation>Voulez-vous quitter Sonavel ?</translation>
    </message>
    <message id="POP_UP_BUTTON_SELECT_RADIO">
        <source>Choose a station</source>
        <translation>Choisir une station</translation>
    </message>
    <message id="POP_UP_BUTTON_SELECT_RADIO_NULL">
        <source>No stations</source>
        <translation>Aucune station</translation>
    </message>
    <message id="BUTTON_CONTINUE">
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message id="BUTTON_ADD">
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message id="BUTTON_EDIT">
        <source>Change</source>
        <translation>Modifier</translation>
    </message>
    <message id="SHOW_EDIT_RADIO_LIST">
        <source>Show Station List</source>
        <translation>Afficher la liste des stations</translation>
    </message>
    <message id="CLOSE_EDIT_RADIO_LIST">
        <source>Close Station List</source>
        <translation>Fermer la liste des stations</translation>
    </message>
    <message id="WIN_EDIT_RADIO_LIST">
        <source>Station List</source>
        <translation>Liste des stations</translation>
    </message>
    <message id="REMOVE_RADIO">
        <source>Remove the station “%@”?</source>
        <translation>Supprimer la station « %@ » ?</translation>
    </message>
    <message id="REMOVE_RADIO_TO_PLAY">
        <source>“%@” is the chosen station. Stop it and remove it?</source>
        <translation>« %@ » est la station choisie. L’arrêter et la supprimer ?</translation>
    </message>
    <message id="REMOVE_ALL_RADIO_SELECTED">
        <source>Remove the %li selected stations?</source>
        <translation>Supprimer les %li stations sélectionnées ?</translation>
    </message>
    <message id="ERASE_ALL_PREVIOUS_DATA">
        <source>Replace the present stations by those in the file? “No” adds them to the list.</source>
        <translation>Remplacer les stations actuelles par celles du fichier ? « Non » les ajoute à la liste.</translation>
    </message>
    <message id="LIMIT_IMPORT_DATA">
        <source>The station list is full. The rest of the file was not imported.</source>
        <translation>La liste des stations est pleine. Le reste du fichier n’a pas été importé.</translation>
    </message>
    <message id="AS_DUPLICATED_DATA">
        <source>Some names in the file were already in the list. Those stations got a number after their name.</source>
        <translation>Certains noms du fichier figuraient déjà dans la liste. Ces stations ont reçu un numéro après leur nom.</translation>
    </message>
    <message id="STATUS_IMPORTED">
        <source>Stations imported: %li.</source>
        <translation>Stations importées : %li.</translation>
    </message>
    <message id="STATUS_FILE_NOT_READ">
        <source>The file could not be read: %@</source>
        <translation>Le fichier n’a pas pu être lu : %@</translation>
    </message>
    <message id="STATUS_NOTHING_IMPORTED">
        <source>No stations were found in the file.</source>
        <translation>Aucune station n’a été trouvée dans le fichier.</translation>
    </message>
    <message id="STATUS_LIST_KEPT">
        <source>The former list was kept as %@.</source>
        <translation>L’ancienne liste a été conservée sous le nom %@.</translation>
    </message>
    <message id="STATUS_LIST_NOT_KEPT">
        <source>The present list could not be kept, so nothing was imported.</source>
        <translation>La liste actuelle n’a pas pu être conservée ; rien n’a donc été importé.</translation>
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
        <translation>Lecture</translation>
    </message>
    <message id="BUTTON_PAUSE">
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message id="BUTTON_STOP">
        <source>Stop</source>
        <translation>Arrêt</translation>
    </message>
    <message id="BUTTON_MUTE">
        <source>Mute</source>
        <translation>Muet</translation>
    </message>
    <message id="BUTTON_STATION_LIST">
        <source>Station List…</source>
        <translation>Liste des stations…</translation>
    </message>
    <message id="HINT_STATION">
        <source>The station to play</source>
        <translation>La station à écouter</translation>
    </message>
    <message id="HINT_VOLUME">
        <source>How loud it plays</source>
        <translation>Le niveau du son</translation>
    </message>
    <message id="HINT_PLAY">
        <source>Play the chosen station</source>
        <translation>Écouter la station choisie</translation>
    </message>
    <message id="HINT_PAUSE">
        <source>Hold the sound</source>
        <translation>Suspendre le son</translation>
    </message>
    <message id="HINT_STOP">
        <source>Stop playing and leave the stream</source>
        <translation>Arrêter la lecture et quitter le flux</translation>
    </message>
    <message id="HINT_MUTE">
        <source>Silence the sound, or let it be heard again</source>
        <translation>Couper le son ou le rétablir</translation>
    </message>
    <message id="HINT_STATION_LIST">
        <source>Show the list of stations, to add to it or change it</source>
        <translation>Afficher la liste des stations pour la compléter ou la modifier</translation>
    </message>
    <message id="WIN_EDIT_DATA">
        <source>Station</source>
        <translation>Station</translation>
    </message>
    <message id="BUTTON_CANCEL">
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message id="LABEL_NAME">
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message id="LABEL_ADDRESS">
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message id="TOOL_ADD">
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message id="TOOL_EDIT">
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message id="TOOL_REMOVE">
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message id="TOOL_IMPORT">
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message id="TOOL_EXPORT">
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message id="HINT_ADD">
        <source>Add a station</source>
        <translation>Ajouter une station</translation>
    </message>
    <message id="HINT_EDIT">
        <source>Change the selected station</source>
        <translation>Modifier la station sélectionnée</translation>
    </message>
    <message id="HINT_REMOVE">
        <source>Remove the selected stations</source>
        <translation>Supprimer les stations sélectionnées</translation>
    </message>
    <message id="HINT_IMPORT">
        <source>Bring in stations from a file</source>
        <translation>Reprendre les stations d’un fichier</translation>
    </message>
    <message id="HINT_EXPORT">
        <source>Save all stations to a file</source>
        <translation>Enregistrer toutes les stations dans un fichier</translation>
    </message>
    <message id="LIST_EMPTY">
        <source>No stations yet. Add one, or import a list.</source>
        <translation>Aucune station pour l’instant. Ajoutez-en une ou importez une liste.</translation>
    </message>
    <message id="FIND">
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message id="FIND_PLACEHOLDER">
        <source>Find a name or address</source>
        <translation>Rechercher un nom ou une adresse</translation>
    </message>
    <message id="FIND_NOTHING">
        <source>Not found</source>
        <translation>Introuvable</translation>
    </message>
    <message id="MENU_SONAVEL">
        <source>&amp;Sonavel</source>
        <translation>&amp;Sonavel</translation>
    </message>
    <message id="MENU_PLAYBACK">
        <source>&amp;Playback</source>
        <translation>&amp;Lecture</translation>
    </message>
    <message id="MENU_STATIONS">
        <source>S&amp;tations</source>
        <translation>S&amp;tations</translation>
    </message>
    <message id="MENU_QUIT">
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message id="MENU_PLAY_PAUSE">
        <source>&amp;Play/Pause</source>
        <translation>&amp;Lecture/Pause</translation>
    </message>
    <message id="MENU_STOP">
        <source>&amp;Stop</source>
        <translation>&amp;Arrêt</translation>
    </message>
    <message id="MENU_MUTE">
        <source>&amp;Mute</source>
        <translation>&amp;Muet</translation>
    </message>
    <message id="MENU_PREVIOUS">
        <source>P&amp;revious Station</source>
        <translation>Station &amp;précédente</translation>
    </message>
    <message id="MENU_NEXT">
        <source>&amp;Next Station</source>
        <translation>Station &amp;suivante</translation>
    </message>
    <message id="MENU_ADD">
        <source>&amp;Add…</source>
        <translation>&amp;Ajouter…</translation>
    </message>
    <message id="MENU_EDIT">
        <source>&amp;Edit…</source>
        <translation>&amp;Modifier…</translation>
    </message>
    <message id="MENU_REMOVE">
        <source>&amp;Remove…</source>
        <translation>&amp;Supprimer…</translation>
    </message>
    <message id="MENU_IMPORT">
        <source>&amp;Import…</source>
        <translation>&amp;Importer…</translation>
    </message>
    <message id="MENU_EXPORT">
        <source>E&amp;xport…</source>
        <translation>E&amp;xporter…</translation>
    </message>
    <message id="WIN_PREFERENCES">
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message id="CHECK_PLAY_AT_START">
        <source>Play the default station when Sonavel starts</source>
        <translation>Écouter la station par défaut au démarrage de Sonavel</translation>
    </message>
    <message id="CHECK_PLAY_WHEN_CHOSEN">
        <source>Play a station as soon as it is chosen</source>
        <translation>Écouter une station dès qu’elle est choisie</translation>
    </message>
    <message id="LABEL_DEFAULT_STATION">
        <source>Default station</source>
        <translation>Station par défaut</translation>
    </message>
    <message id="LABEL_DEFAULT_VOLUME">
        <source>Default volume</source>
        <translation>Volume par défaut</translation>
    </message>
    <message id="HINT_DEFAULT_STATION">
        <source>The station that is chosen when Sonavel starts</source>
        <translation>La station choisie au démarrage de Sonavel</translation>
    </message>
    <message id="HINT_DEFAULT_VOLUME">
        <source>How loud Sonavel is when it starts</source>
        <translation>Le niveau du son au démarrage de Sonavel</translation>
    </message>
    <message id="BUTTON_CLOSE">
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message id="WIN_UPDATE">
        <source>Software Update</source>
        <translation>Mise à jour du logiciel</translation>
    </message>
    <message id="UPD_NEW_UPDATE_AVIABLE">
        <source>has a new version</source>
        <translation>a une nouvelle version</translation>
    </message>
    <message id="UPD_INFO">
        <source>is available. You have</source>
        <translation>est disponible. Vous avez</translation>
    </message>
    <message id="UPDATE_NONE">
        <source>You have the newest version, %@.</source>
        <translation>Vous avez la version la plus récente, %@.</translation>
    </message>
    <message id="UPDATE_NO_ANSWER">
        <source>The server gave no usable answer. Try again later.</source>
        <translation>Le serveur n’a pas donné de réponse utilisable. Réessayez plus tard.</translation>
    </message>
    <message id="BUTTON_DOWNLOAD">
        <source>Download</source>
        <translation>Télécharger</translation>
    </message>
    <message id="BUTTON_REMIND">
        <source>Remind Me Later</source>
        <translation>Me le rappeler plus tard</translation>
    </message>
    <message id="RELEASE_NOTES">
        <source>What is new</source>
        <translation>Nouveautés</translation>
    </message>
    <message id="WIN_ABOUT">
        <source>About Sonavel</source>
        <translation>À propos de Sonavel</translation>
    </message>
    <message id="ABOUT_VERSION">
        <source>Version %@</source>
        <translation>Version %@</translation>
    </message>
    <message id="ABOUT_LICENSE">
        <source>Free software under the MIT license</source>
        <translation>Logiciel libre sous licence MIT</translation>
    </message>
    <message id="ABOUT_COPYRIGHT">
        <source>© 2026 The Sonavel developers</source>
        <translation>© 2026 The Sonavel developers</translation>
    </message>
    <message id="MENU_ABOUT">
        <source>&amp;About Sonavel</source>
        <translation>À &amp;propos de Sonavel</translation>
    </message>
    <message id="MENU_CHECK_UPDATES">
        <source>&amp;Check for Updates…</source>
        <translation>&amp;Rechercher des mises à jour…</translation>
    </message>
    <message id="MENU_PREFERENCES">
        <source>&amp;Preferences…</source>
        <translation>Pré&amp;férences…</translation>
    </message>
    <message id="NOW_PLAYING">
        <source>Now playing</source>
        <translation>En cours</translation>
    </message>
    <message id="NOW_PLAYING_NOTHING">
        <source>Not playing</source>
        <translation>Aucune lecture</translation>
    </message>
    <message id="NOW_PLAYING_CONNECTING">
        <source>Connecting…</source>
        <translation>Connexion…</translation>
    </message>
    <message id="NOW_PLAYING_BUFFERING">
        <source>Buffering…</source>
        <translation>Mise en mémoire tampon…</translation>
    </message>
    <message id="NOW_PLAYING_UNTITLED">
        <source>Playing</source>
        <translation>Lecture en cours</translation>
    </message>
    <message id="NOW_PLAYING_PAUSED">
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message id="NOW_PLAYING_TRYING_IN">
        <source>%@. Trying again in %li s</source>
        <translation>%@. Nouvel essai dans %li s</translation>
    </message>
    <message id="NOW_PLAYING_TRYING">
        <source>%@. Trying again…</source>
        <translation>%@. Nouvel essai…</translation>
    </message>
    <message id="NOTICE_STATIONS_NOT_SAVED">
        <source>The station list could not be saved: %@</source>
        <translation>La liste des stations n’a pas pu être enregistrée : %@</translation>
    </message>
    <message id="NOTICE_PREFERENCES_NOT_SAVED">
        <source>The preferences could not be saved: %@</source>
        <translation>Les préférences n’ont pas pu être enregistrées : %@</translation>
    </message>
    <message id="NOTICE_FILE_NOT_SAVED">
        <source>A file could not be saved: %@</source>
        <translation>Un fichier n’a pas pu être enregistré : %@</translation>
    </message>
    <message id="PANEL_IMPORT">
        <source>Import Stations</source>
        <translation>Importer des stations</translation>
    </message>
    <message id="PANEL_EXPORT">
        <source>Export Stations</source>
        <translation>Exporter les stations</translation>
    </message>
    <message id="PANEL_STATION_LISTS">
        <source>Station lists</source>
        <translation>Listes de stations</translation>
    </message>
    <message id="PANEL_OTHER_KIND">
        <source>Only files whose names end in “.%@” can be imported.</source>
        <translation>Seuls les fichiers dont le nom se termine par « .%@ » peuvent être importés.</translation>
    </message>
    <message id="PANEL_REPLACE">
        <source>“%@” already exists. Do you want to replace it?</source>
        <translation>« %@ » existe déjà. Voulez-vous le remplacer ?</translation>
    </message>
    <message id="SPLASH_WAITING">
        <source>Waiting for %@…</source>
        <translation>En attente de %@…</translation>
    </message>
    <message id="FAILURE_UNKNOWN">
        <source>Cannot be played</source>
        <translation>Lecture impossible</translation>
    </message>
    <message id="FAILURE_NO_SUCH_HOST">
        <source>No such server</source>
        <translation>Serveur inconnu</translation>
    </message>
    <message id="FAILURE_REFUSED">
        <source>Connection refused</source>
        <translation>Connexion refusée</translation>
    </message>
    <message id="FAILURE_UNREACHABLE">
        <source>Server unreachable</source>
        <translation>Serveur injoignable</translation>
    </message>
    <message id="FAILURE_TIMED_OUT">
        <source>No answer</source>
        <translation>Pas de réponse</translation>
    </message>
    <message id="FAILURE_CERTIFICATE">
        <source>Invalid certificate</source>
        <translation>Certificat invalide</translation>
    </message>
    <message id="FAILURE_NOT_FOUND">
        <source>404 Not Found</source>
        <translation>404 Introuvable</translation>
    </message>
    <message id="FAILURE_NOT_ALLOWED">
        <source>Access denied</source>
        <translation>Accès refusé</translation>
    </message>
    <message id="FAILURE_REJECTED">
        <source>Request rejected</source>
        <translation>Requête rejetée</translation>
    </message>
    <message id="FAILURE_SERVER_ERROR">
        <source>Server error</source>
        <translation>Erreur du serveur</translation>
    </message>
    <message id="FAILURE_NOT_A_STREAM">
        <source>Not a stream</source>
        <translation>Ce n’est pas un flux</translation>
    </message>
    <message id="FAILURE_NOT_USABLE">
        <source>Unusable address</source>
        <translation>Adresse inutilisable</translation>
    </message>
    <message id="FAILURE_ENDED">
        <source>Stream ended</source>
        <translation>Le flux est terminé</translation>
    </message>
    <message id="FAILURE_SILENT">
        <source>Stream is silent</source>
        <translation>Le flux est muet</translation>
    </message>
    <message id="FAILURE_NO_SOUND_OUTPUT">
        <source>No sound output</source>
        <translation>Aucune sortie audio</translation>
    </message>
    <message id="FAILURE_ENGINE_FAILED">
        <source>Sound engine failed</source>
        <translation>Moteur audio arrêté</translation>
    </message>
</context>
</TS>
