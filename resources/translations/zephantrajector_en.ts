<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="fr">
<context>
    <name>CDialogLatLon</name>
    <message>
        <source>Lat/Lon</source>
        <translation>Lat/Lon</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitude</translation>
    </message>
</context>
<context>
    <name>CDialogNav</name>
    <message>
        <source>NAVAID</source>
        <translation>NAVAID</translation>
    </message>
    <message>
        <source>Nom</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Identifiant</source>
        <translation>Identifier</translation>
    </message>
    <message>
        <source>Pays</source>
        <translation>Country</translation>
    </message>
    <message>
        <source>Clé unique</source>
        <translation>Unique key</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>Fréquence</source>
        <translation>Frequency</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>VOR</source>
        <translation>VOR</translation>
    </message>
    <message>
        <source>TACAN</source>
        <translation>TACAN</translation>
    </message>
    <message>
        <source>NDB</source>
        <translation>NDB</translation>
    </message>
    <message>
        <source>VOR DME</source>
        <translation>VOR DME</translation>
    </message>
    <message>
        <source>NDB DME</source>
        <translation>NDB DME</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Usage</translation>
    </message>
    <message>
        <source>High</source>
        <translation>High</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Both</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>RNAV</source>
        <translation>RNAV</translation>
    </message>
    <message>
        <source>Mise à jour DB</source>
        <translation>Update DB</translation>
    </message>
    <message>
        <source>Enregistrement CSV</source>
        <translation>Save CSV</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Le navaid %1 existe déja.
Voulez vous continuer ?</source>
        <translation>The navaid %1 already exists.
Do you want to go on?</translation>
    </message>
    <message>
        <source>Nouveau NAVAID</source>
        <translation>New NAVAID</translation>
    </message>
    <message>
        <source>Création NDB</source>
        <translation>New NDB</translation>
    </message>
    <message>
        <source>Création VOR</source>
        <translation>New VOR</translation>
    </message>
    <message>
        <source>La fréquence doit être comprise entre 180 et 1750 Khz.</source>
        <translation>The frequency must lie between 180 and 1750 kHz.</translation>
    </message>
    <message>
        <source>La fréquence doit être comprise entre 108.000 et 117.95 Mhz.</source>
        <translation>The frequency must lie between 108.000 and 117.95 MHz.</translation>
    </message>
    <message>
        <source>Nouveau NAVAID: export</source>
        <translation>New NAVAID: export</translation>
    </message>
    <message>
        <source>%1 a été modifié/ajouté à la base GEN.db</source>
        <translation>%1 has been changed in/added to the database GEN.db</translation>
    </message>
</context>
<context>
    <name>CDialogWpt</name>
    <message>
        <source>WAYPOINT</source>
        <translation>WAYPOINT</translation>
    </message>
    <message>
        <source>Nom</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Identifiant</source>
        <translation>Identifier</translation>
    </message>
    <message>
        <source>Pays</source>
        <translation>Country</translation>
    </message>
    <message>
        <source>Clé unique</source>
        <translation>Unique key</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Usage</translation>
    </message>
    <message>
        <source>1 HIGH LEVEL</source>
        <translation>1 HIGH LEVEL</translation>
    </message>
    <message>
        <source>2 LOW LEVEL</source>
        <translation>2 LOW LEVEL</translation>
    </message>
    <message>
        <source>3 BOTH</source>
        <translation>3 BOTH</translation>
    </message>
    <message>
        <source>4 RNAV</source>
        <translation>4 RNAV</translation>
    </message>
    <message>
        <source>5 TERMINAL</source>
        <translation>5 TERMINAL</translation>
    </message>
    <message>
        <source>6 VFR</source>
        <translation>6 VFR</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source> 1 UNAMED</source>
        <translation> 1 UNNAMED</translation>
    </message>
    <message>
        <source>4 NDB</source>
        <translation>4 NDB</translation>
    </message>
    <message>
        <source>6 NAMED</source>
        <translation>6 NAMED</translation>
    </message>
    <message>
        <source>9 OFF ROUTE</source>
        <translation>9 OFF ROUTE</translation>
    </message>
    <message>
        <source>10 VFR</source>
        <translation>10 VFR</translation>
    </message>
    <message>
        <source>12 RNAV</source>
        <translation>12 RNAV</translation>
    </message>
    <message>
        <source>Mise à jour DB</source>
        <translation>Update DB</translation>
    </message>
    <message>
        <source>Enregistrement CSV</source>
        <translation>Save CSV</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Nouveau WAYPOINT</source>
        <translation>New WAYPOINT</translation>
    </message>
    <message>
        <source>Nouveau WAYPOINT: export</source>
        <translation>New WAYPOINT: export</translation>
    </message>
    <message>
        <source>%1 a été modifié/ajouté à la base WPT.db</source>
        <translation>%1 has been changed in/added to the database WPT.db</translation>
    </message>
</context>
<context>
    <name>CFlightPlan</name>
    <message>
        <source>Ouvrir un plan de vol existant</source>
        <translation>Open an existing flight plan</translation>
    </message>
    <message>
        <source>Fichier plan de vol (*.fpl)</source>
        <translation>Flight plan file (*.fpl)</translation>
    </message>
    <message>
        <source>Chargement plan de vol</source>
        <translation>Load flight plan</translation>
    </message>
    <message>
        <source>Le fichier %1 n&apos;est pas un plan de vol : il ne contient aucun point</source>
        <translation>The file %1 is no flight plan: it holds no point</translation>
    </message>
    <message>
        <source>Le plan de vol %1 est endommagé, champs ignorés : %2</source>
        <translation>The flight plan %1 is damaged, fields ignored: %2</translation>
    </message>
    <message>
        <source>Le fichier %1 est trop grand pour un plan de vol : il n&apos;est pas chargé</source>
        <translation>The file %1 is too large for a flight plan: it is not loaded</translation>
    </message>
</context>
<context>
    <name>CIODataBase</name>
    <message>
        <source>%2 NAVAID ont été exportés dans %1</source>
        <translation>%2 NAVAIDs exported to %1</translation>
    </message>
    <message>
        <source>exportNAV: Impossible d&apos;ouvrir le fichier %1</source>
        <translation>exportNAV: Cannot open the file %1</translation>
    </message>
    <message>
        <source>%2 WAYPOINT ont été exportés dans %1</source>
        <translation>%2 WAYPOINTs exported to %1</translation>
    </message>
    <message>
        <source>exportWPT: Impossible d&apos;ouvrir le fichier %1</source>
        <translation>exportWPT: Cannot open the file %1</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>Le fichier %1 existe déja.
Voulez vous l&apos;écraser ?</source>
        <translation>The file %1 already exists.
Do you want to overwrite it?</translation>
    </message>
    <message>
        <source>Erreur CSV</source>
        <translation>CSV error</translation>
    </message>
    <message>
        <source>Exportation</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Erreur SQL</source>
        <translation>SQL error</translation>
    </message>
    <message>
        <source>Impossible de trouver l&apos;objet %1 dans la base de donnée %2</source>
        <translation>Cannot find object %1 in database %2</translation>
    </message>
    <message>
        <source>L&apos;objet 3D %1 a été enregistré dans %2</source>
        <translation>The 3D object %1 has been saved to %2</translation>
    </message>
    <message>
        <source>Impossible de trouver le projet %1 dans la base de donnée %2</source>
        <translation>Cannot find project %1 in database %2</translation>
    </message>
    <message>
        <source>Le projet 3D %1 a été enregistré dans %2</source>
        <translation>The 3D project %1 has been saved to %2</translation>
    </message>
    <message>
        <source>Importation</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>Importation terminée
 %1</source>
        <translation>Import finished
 %1</translation>
    </message>
    <message>
        <source>Ouvrir un fichier d&apos;import</source>
        <translation>Open an import file</translation>
    </message>
    <message>
        <source>Fichier Zephan Export (*.CSV);;Tous (*.*)</source>
        <translation>Zephan Export file (*.CSV);;All (*.*)</translation>
    </message>
    <message>
        <source>Il y a eu des erreurs à l&apos;importation
%1</source>
        <translation>There were errors during the import
%1</translation>
    </message>
    <message>
        <source>La base de données %1 est inconnue.
%2</source>
        <translation>The database %1 is unknown.
%2</translation>
    </message>
    <message>
        <source>La table %1 est inconnue dans la base de données %2.
%3</source>
        <translation>The table %1 is unknown in the database %2.
%3</translation>
    </message>
    <message>
        <source>Vous allez effacer la totalité des données de la table %1.
Voulez vous continuer ?</source>
        <translation>You are about to delete all data of the table %1.
Do you want to continue?</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>L&apos;import a été annulé.</source>
        <translation>The import has been cancelled.</translation>
    </message>
    <message>
        <source>Le fichier %1 n&apos;est pas un fichier d&apos;import : une de ses lignes est trop longue.</source>
        <translation>The file %1 is no import file: one of its lines is too long.</translation>
    </message>
</context>
<context>
    <name>DatabasePlace</name>
    <message>
        <source>Le fichier de la base %1 a été remplacé ou effacé depuis son ouverture.
Rien n&apos;est modifié : redémarrez Zephan Trajector.</source>
        <translation>The file of the database %1 has been replaced or deleted since it was opened.
Nothing is changed: start Zephan Trajector anew.</translation>
    </message>
    <message>
        <source>Base de données déplacée</source>
        <translation>Database moved</translation>
    </message>
</context>
<context>
    <name>Launcher</name>
    <message>
        <source>Zephan Trajector</source>
        <translation>Zephan Trajector</translation>
    </message>
    <message>
        <source>Choisir le dossier du simulateur, celui qui contient AeoZephan.exe</source>
        <translation>Choose the simulator&apos;s folder, the one that holds AeoZephan.exe</translation>
    </message>
    <message>
        <source>Il n&apos;y a pas de AeoZephan.exe dans ce dossier :
%1

Le prendre quand même ?</source>
        <translation>There is no AeoZephan.exe in this folder:
%1

Take it all the same?</translation>
    </message>
    <message>
        <source>Le simulateur n&apos;est plus dans ce dossier :
%1

Choisissez son dossier.</source>
        <translation>The simulator is no longer in this folder:
%1

Choose its folder.</translation>
    </message>
    <message>
        <source>Lance Zephan Trajector dans le dossier Tools/Trajector du simulateur AeoZephan, après l&apos;y avoir mis à jour.</source>
        <translation>Starts Zephan Trajector in the folder Tools/Trajector of the AeoZephan simulator, after bringing it up to date there.</translation>
    </message>
    <message>
        <source>Demander de nouveau le dossier du simulateur.</source>
        <translation>Ask anew for the simulator&apos;s folder.</translation>
    </message>
    <message>
        <source>DOSSIER</source>
        <translation>FOLDER</translation>
    </message>
    <message>
        <source>Le dossier du simulateur, désormais retenu.</source>
        <translation>The simulator&apos;s folder, remembered from now on.</translation>
    </message>
    <message>
        <source>Ce dossier n&apos;existe pas :
%1</source>
        <translation>This folder does not exist:
%1</translation>
    </message>
    <message>
        <source>Le dossier du simulateur ne peut pas être retenu, il sera redemandé.</source>
        <translation>The simulator&apos;s folder cannot be remembered, it will be asked for again.</translation>
    </message>
    <message>
        <source>Zephan Trajector ne peut pas être lancé dans ce dossier :
%1
%2</source>
        <translation>Zephan Trajector cannot be started in this folder:
%1
%2</translation>
    </message>
    <message>
        <source>Zephan Trajector a besoin d&apos;un écran : ni DISPLAY ni WAYLAND_DISPLAY.</source>
        <translation>Zephan Trajector needs a display: neither DISPLAY nor WAYLAND_DISPLAY is set.</translation>
    </message>
    <message>
        <source>Zephan Trajector ne peut pas être placé dans le dossier du simulateur :
%1
%2</source>
        <translation>Zephan Trajector cannot be put into the simulator&apos;s folder:
%1
%2</translation>
    </message>
    <message>
        <source>Le dossier ne peut pas être créé.</source>
        <translation>The folder cannot be made.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Zephan Trajector</source>
        <translation>Zephan Trajector</translation>
    </message>
    <message>
        <source>about:blank</source>
        <translation>about:blank</translation>
    </message>
    <message>
        <source>Plan de vol</source>
        <translation>Flight plan</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>A propos</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Recherche</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Exact</source>
        <translation>Exact</translation>
    </message>
    <message>
        <source>Approx.</source>
        <translation>Approx.</translation>
    </message>
    <message>
        <source>Nouveau</source>
        <translation>New</translation>
    </message>
    <message>
        <source>Ctrl+L</source>
        <translation>Ctrl+L</translation>
    </message>
    <message>
        <source>Enregistrer</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Charger</source>
        <translation>Load</translation>
    </message>
    <message>
        <source>Départ</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>SID</source>
        <translation>SID</translation>
    </message>
    <message>
        <source>STAR</source>
        <translation>STAR</translation>
    </message>
    <message>
        <source>POD</source>
        <translation>POD</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Trace</translation>
    </message>
    <message>
        <source>Centre avion</source>
        <translation>Centre aircraft</translation>
    </message>
    <message>
        <source>Nom</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Point de report</source>
        <translation>Waypoint</translation>
    </message>
    <message>
        <source>Ajouter au plan de vol</source>
        <translation>Add to flight plan</translation>
    </message>
    <message>
        <source>Supprimer</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Supprimer tout</source>
        <translation>Delete all</translation>
    </message>
    <message>
        <source>Avion</source>
        <translation>Aircraft</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Vitesse de croisère maxi(kts)</source>
        <translation>Maximum cruise speed (kts)</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Vitesse de croisière (kts)</source>
        <translation>Cruise speed (kts)</translation>
    </message>
    <message>
        <source>Vitesse en approche (kts)</source>
        <translation>Approach speed (kts)</translation>
    </message>
    <message>
        <source>Vitesse acensionnelle (ft/mn)</source>
        <translation>Rate of climb (ft/min)</translation>
    </message>
    <message>
        <source>Plafond (ft)</source>
        <translation>Ceiling (ft)</translation>
    </message>
    <message>
        <source>Altitude maxi de croisière (ft)</source>
        <translation>Maximum cruise altitude (ft)</translation>
    </message>
    <message>
        <source>Immatriculation</source>
        <translation>Registration</translation>
    </message>
    <message>
        <source>Debug info</source>
        <translation>Debug info</translation>
    </message>
    <message>
        <source>toolBar</source>
        <translation>toolBar</translation>
    </message>
    <message>
        <source>Nouveau plan de vol</source>
        <translation>New flight plan</translation>
    </message>
    <message>
        <source>Ctrl+N</source>
        <translation>Ctrl+N</translation>
    </message>
    <message>
        <source>Enregistrer le plan de vol</source>
        <translation>Save flight plan</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>Charger un plan de vol</source>
        <translation>Load flight plan</translation>
    </message>
    <message>
        <source>Quitter</source>
        <translation>Quit</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>Importer mise à jour</source>
        <translation>Import update</translation>
    </message>
    <message>
        <source>A propos de Qt</source>
        <translation>About Qt</translation>
    </message>
    <message>
        <source>Sélectionner le répertoire de Aeo Zephan</source>
        <translation>Select the Aeo Zephan folder</translation>
    </message>
    <message>
        <source>Sélectionner le répertoire de travail</source>
        <translation>Select the work folder</translation>
    </message>
    <message>
        <source>Zephan Trajector - Version %1</source>
        <translation>Zephan Trajector - Version %1</translation>
    </message>
    <message>
        <source>Ouvrir un POD</source>
        <translation>Open a POD</translation>
    </message>
    <message>
        <source>Fichier POD (*pod)</source>
        <translation>POD file (*pod)</translation>
    </message>
    <message>
        <source>SID : %1</source>
        <translation>SID: %1</translation>
    </message>
    <message>
        <source>STAR : %1</source>
        <translation>STAR: %1</translation>
    </message>
    <message>
        <source>Voulez vous effacer le plan de vol en cours ?</source>
        <translation>Do you want to clear the current flight plan?</translation>
    </message>
    <message>
        <source>SID : </source>
        <translation>SID: </translation>
    </message>
    <message>
        <source>STAR : </source>
        <translation>STAR: </translation>
    </message>
    <message>
        <source>Enregistrement plan de vol</source>
        <translation>Save flight plan</translation>
    </message>
    <message>
        <source>Un plan de vol doit comporté au moins deux points</source>
        <translation>A flight plan needs at least two points</translation>
    </message>
    <message>
        <source>Le plan de vol %1 a été enregistré</source>
        <translation>The flight plan %1 has been saved</translation>
    </message>
    <message>
        <source>Enregistrement point de départ</source>
        <translation>Save start position</translation>
    </message>
    <message>
        <source>Vous devez choisir un aéroport en première ligne.</source>
        <translation>The first line must be an airport.</translation>
    </message>
    <message>
        <source>Voulez vous définir %1 comme départ dans AeoZephan ?</source>
        <translation>Do you want AeoZephan to start at %1?</translation>
    </message>
    <message>
        <source>Enregistrement position initiale</source>
        <translation>Save initial position</translation>
    </message>
    <message>
        <source>Airport: %1 éléments chargés</source>
        <translation>Airport: %1 items loaded</translation>
    </message>
    <message>
        <source>Navaid: %1 éléments chargés</source>
        <translation>Navaid: %1 items loaded</translation>
    </message>
    <message>
        <source>Waypoint: %1 élément chargés</source>
        <translation>Waypoint: %1 items loaded</translation>
    </message>
    <message>
        <source>ATS: %1 élément chargés</source>
        <translation>ATS: %1 items loaded</translation>
    </message>
    <message>
        <source>OACI</source>
        <translation>ICAO</translation>
    </message>
    <message>
        <source>Pays</source>
        <translation>Country</translation>
    </message>
    <message>
        <source>Clé unique</source>
        <translation>Unique key</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Fréq.</source>
        <translation>Freq.</translation>
    </message>
    <message>
        <source>Vitesse</source>
        <translation>Speed</translation>
    </message>
    <message>
        <source>Route</source>
        <translation>Course</translation>
    </message>
    <message>
        <source>Dist</source>
        <translation>Dist</translation>
    </message>
    <message>
        <source>Durée</source>
        <translation>ETE</translation>
    </message>
    <message>
        <source>Temps</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Altitude</translation>
    </message>
    <message>
        <source>Lat.</source>
        <translation>Lat.</translation>
    </message>
    <message>
        <source>Long.</source>
        <translation>Long.</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>Centrer sur ce point</source>
        <translation>Centre on this point</translation>
    </message>
    <message>
        <source>Supprimer la ligne</source>
        <translation>Delete line</translation>
    </message>
    <message>
        <source>Monter la ligne</source>
        <translation>Move line up</translation>
    </message>
    <message>
        <source>Descendre la ligne</source>
        <translation>Move line down</translation>
    </message>
    <message>
        <source>A propos de Zephan Trajector</source>
        <translation>About Zephan Trajector</translation>
    </message>
    <message>
        <source>Zephan Trajector
version %1</source>
        <translation>Zephan Trajector
version %1</translation>
    </message>
    <message>
        <source>Chargement terminé</source>
        <translation>Loading finished</translation>
    </message>
    <message>
        <source>Centre: %1  %2
 %3 %4
%5 %6</source>
        <translation>Centre: %1  %2
 %3 %4
%5 %6</translation>
    </message>
    <message>
        <source>Aéroport</source>
        <translation>Airport</translation>
    </message>
    <message>
        <source>Affiche les aéroports</source>
        <translation>Shows the airports</translation>
    </message>
    <message>
        <source>VOR</source>
        <translation>VOR</translation>
    </message>
    <message>
        <source>Affiche les VOR</source>
        <translation>Shows the VOR</translation>
    </message>
    <message>
        <source>NDB Rte</source>
        <translation>NDB Rte</translation>
    </message>
    <message>
        <source>Affiche les NDB en route</source>
        <translation>Shows the en route NDB</translation>
    </message>
    <message>
        <source>NDB Ter</source>
        <translation>NDB Ter</translation>
    </message>
    <message>
        <source>Affiche les NDB terminaux</source>
        <translation>Shows the terminal NDB</translation>
    </message>
    <message>
        <source>Waypoint en route</source>
        <translation>En route waypoints</translation>
    </message>
    <message>
        <source>Affiche les points de report en route</source>
        <translation>Shows the en route waypoints</translation>
    </message>
    <message>
        <source>Waypoint terminaux</source>
        <translation>Terminal waypoints</translation>
    </message>
    <message>
        <source>Affiche les points de report terminaux</source>
        <translation>Shows the terminal waypoints</translation>
    </message>
    <message>
        <source>Waypoint VFR</source>
        <translation>VFR waypoints</translation>
    </message>
    <message>
        <source>Affiche les points de report VFR</source>
        <translation>Shows the VFR waypoints</translation>
    </message>
    <message>
        <source>ATS Low</source>
        <translation>ATS Low</translation>
    </message>
    <message>
        <source>Affiche les routes basse altitude</source>
        <translation>Shows the low altitude airways</translation>
    </message>
    <message>
        <source>ATS High</source>
        <translation>ATS High</translation>
    </message>
    <message>
        <source>Affiche les routes haute altitude</source>
        <translation>Shows the high altitude airways</translation>
    </message>
    <message>
        <source>ATS High/Low</source>
        <translation>ATS High/Low</translation>
    </message>
    <message>
        <source>Affiche les routes mixtes</source>
        <translation>Shows the airways of both levels</translation>
    </message>
    <message>
        <source>Zone de contôle</source>
        <translation>Control zones</translation>
    </message>
    <message>
        <source>Affiche les zones de contrôle</source>
        <translation>Shows the control zones</translation>
    </message>
    <message>
        <source>Plein écran</source>
        <translation>Full screen</translation>
    </message>
    <message>
        <source>Mode plein écran</source>
        <translation>Full screen mode</translation>
    </message>
    <message>
        <source>Effacer</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Effacer
&amp; Exporter</source>
        <translation>Delete
&amp; Export</translation>
    </message>
    <message>
        <source>Annuler</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Modification d&apos;un navaid</source>
        <translation>Change a navaid</translation>
    </message>
    <message>
        <source>Le navaid %1 n&apos;existe pas dans la base</source>
        <translation>The navaid %1 is not in the database</translation>
    </message>
    <message>
        <source>Modification d&apos;un waypoint</source>
        <translation>Change a waypoint</translation>
    </message>
    <message>
        <source>Le waypoint %1 n&apos;existe pas dans la base</source>
        <translation>The waypoint %1 is not in the database</translation>
    </message>
    <message>
        <source>Suppression d&apos;un navaid</source>
        <translation>Delete a navaid</translation>
    </message>
    <message>
        <source>Le point sélectionné n&apos;existe pas dans la base</source>
        <translation>The selected point is not in the database</translation>
    </message>
    <message>
        <source>Le navaid %1 a été effacé</source>
        <translation>The navaid %1 has been deleted</translation>
    </message>
    <message>
        <source>Suppression/export d&apos;un navaid</source>
        <translation>Delete/export a navaid</translation>
    </message>
    <message>
        <source>Le navaid %1 a été effacé et enregistrer pour export 
dans %2</source>
        <translation>The navaid %1 has been deleted and saved for export 
in %2</translation>
    </message>
    <message>
        <source>Le navaid %1 a été effacé mais l&apos;export à échoué</source>
        <translation>The navaid %1 has been deleted but the export failed</translation>
    </message>
    <message>
        <source>Voulez vous effacer définitivement %1 ?</source>
        <translation>Do you want to delete %1 for good?</translation>
    </message>
    <message>
        <source>Suppression d&apos;un waypoint</source>
        <translation>Delete a waypoint</translation>
    </message>
    <message>
        <source>Le waypoint sélectionné n&apos;existe pas dans la base</source>
        <translation>The selected waypoint is not in the database</translation>
    </message>
    <message>
        <source>Le waypoint %1 a été effacé</source>
        <translation>The waypoint %1 has been deleted</translation>
    </message>
    <message>
        <source>Le waypoint %1 a été effacé et enregistrer pour export 
dans %2</source>
        <translation>The waypoint %1 has been deleted and saved for export 
in %2</translation>
    </message>
    <message>
        <source>Trajectoire avion</source>
        <translation>Aircraft trace</translation>
    </message>
    <message>
        <source>Impossible de se connecter à Aeo!Zephan.
Assurez vous de l&apos;avoir démarré.</source>
        <translation>Cannot connect to Aeo!Zephan.
Make sure that you have started it.</translation>
    </message>
    <message>
        <source>Voies aériennes</source>
        <translation>Airways</translation>
    </message>
    <message>
        <source>Le point %1 n&apos;appartient à aucune voie aérienne</source>
        <translation>The point %1 belongs to no airway</translation>
    </message>
    <message>
        <source>Voie aérienne</source>
        <translation>Airway</translation>
    </message>
    <message>
        <source>Liste des voies passant par le point %1</source>
        <translation>List of the airways through the point %1</translation>
    </message>
    <message>
        <source>Création d&apos;un SID</source>
        <translation>Create a SID</translation>
    </message>
    <message>
        <source>Le nouveau SID doit commencé par un aéroport</source>
        <translation>The new SID has to begin with an airport</translation>
    </message>
    <message>
        <source>Nouveau SID</source>
        <translation>New SID</translation>
    </message>
    <message>
        <source>Nom du SID</source>
        <translation>Name of the SID</translation>
    </message>
    <message>
        <source>Enregistrement SID</source>
        <translation>Save SID</translation>
    </message>
    <message>
        <source>Le SID %1 a été enregistré</source>
        <translation>The SID %1 has been saved</translation>
    </message>
    <message>
        <source>Création d&apos;un STAR</source>
        <translation>Create a STAR</translation>
    </message>
    <message>
        <source>Le nouveau STAR doit finir par un aéroport</source>
        <translation>The new STAR has to end with an airport</translation>
    </message>
    <message>
        <source>Nouveau STAR</source>
        <translation>New STAR</translation>
    </message>
    <message>
        <source>Nom du STAR</source>
        <translation>Name of the STAR</translation>
    </message>
    <message>
        <source>Enregistrement STAR</source>
        <translation>Save STAR</translation>
    </message>
    <message>
        <source>Le STAR %1 a été enregistré</source>
        <translation>The STAR %1 has been saved</translation>
    </message>
    <message>
        <source>Effacer un SID/STAR</source>
        <translation>Delete a SID/STAR</translation>
    </message>
    <message>
        <source>Voulez vous effacer le SID/STAR %1 ?</source>
        <translation>Do you want to delete the SID/STAR %1?</translation>
    </message>
    <message>
        <source>Effacement STAR</source>
        <translation>Delete STAR</translation>
    </message>
    <message>
        <source>La STAR %1 a été effacé</source>
        <translation>The STAR %1 has been deleted</translation>
    </message>
    <message>
        <source>Suppression/export d&apos;un SIDSTAR</source>
        <translation>Delete/export a SIDSTAR</translation>
    </message>
    <message>
        <source>Le SIDSTAR %1 a été effacé et enregistrer pour export 
dans %2</source>
        <translation>The SIDSTAR %1 has been deleted and saved for export 
in %2</translation>
    </message>
    <message>
        <source>Le SIDSTAR %1 a été effacé mais l&apos;export à échoué</source>
        <translation>The SIDSTAR %1 has been deleted but the export failed</translation>
    </message>
    <message>
        <source>Effacer les SID/STAR</source>
        <translation>Delete the SID/STAR</translation>
    </message>
    <message>
        <source>Voulez vous effacer tous les SID/STAR de %1 ?</source>
        <translation>Do you want to delete all SID/STAR of %1?</translation>
    </message>
    <message>
        <source>Effacement SID/STAR</source>
        <translation>Delete SID/STAR</translation>
    </message>
    <message>
        <source>Les SID/STAR de %1 ont été effacé</source>
        <translation>The SID/STAR of %1 have been deleted</translation>
    </message>
    <message>
        <source>Les SIDSTAR de %1 ont été effacé et enregistrer pour export 
dans %2</source>
        <translation>The SIDSTAR of %1 have been deleted and saved for export 
in %2</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>About Qt</source>
        <translation>About Qt</translation>
    </message>
</context>
<context>
    <name>RowSaving</name>
    <message>
        <source>Le fichier d&apos;export pour %1
a été enregistré dans %2</source>
        <translation>The export file for %1
has been saved in %2</translation>
    </message>
</context>
<context>
    <name>SqlMgr</name>
    <message>
        <source>SQL Error</source>
        <translation>SQL error</translation>
    </message>
    <message>
        <source>Ouverture de la base de données impossible.</source>
        <translation>The database cannot be opened.</translation>
    </message>
    <message>
        <source>Impossible d&quot;établir la connexion avec %1.</source>
        <translation>Cannot connect to %1.</translation>
    </message>
    <message>
        <source>Erreur de version de base de données</source>
        <translation>Database version error</translation>
    </message>
    <message>
        <source>M3D : La version attendue est %1.
La version trouvée est %2.
Le programme va s&apos;arréter.</source>
        <translation>M3D: the version expected is %1.
The version found is %2.
The program will now end.</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>Le fichier %1 n&apos;a pas pu être écrit en entier : le disque est peut-être plein.
Ce qu&apos;il contenait avant est conservé.</source>
        <translation>The file %1 could not be written to its end: the disk may be full.
What it held before is kept.</translation>
    </message>
    <message>
        <source>Erreur d&apos;écriture</source>
        <translation>Write error</translation>
    </message>
</context>
</TS>
