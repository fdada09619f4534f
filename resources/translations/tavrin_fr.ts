<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>AlertCard</name>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>End session…</source>
        <translation>Terminer la session…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
</context>
<context>
    <name>AlertNotifier</name>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Free RAM…</source>
        <translation>Libérer la RAM…</translation>
    </message>
    <message>
        <source>End session…</source>
        <translation>Terminer la session…</translation>
    </message>
    <message>
        <source>Quit %1</source>
        <translation>Quitter %1</translation>
    </message>
    <message>
        <source>Cleaning is done</source>
        <translation>Nettoyage terminé</translation>
    </message>
</context>
<context>
    <name>AlertStripView</name>
    <message>
        <source>System looks healthy.</source>
        <translation>Le système se porte bien.</translation>
    </message>
</context>
<context>
    <name>AlertsTab</name>
    <message>
        <source>Alerts</source>
        <translation>Alertes</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>Low RAM warning</source>
        <translation>Alerte de RAM faible</translation>
    </message>
    <message>
        <source>Free RAM threshold</source>
        <translation>Seuil de RAM libre</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1&#xa0;Go</translation>
    </message>
    <message>
        <source>Notify when RAM is getting tight</source>
        <translation>Notifier quand la RAM se fait rare</translation>
    </message>
    <message>
        <source>Memory pressure</source>
        <translation>Pression mémoire</translation>
    </message>
    <message>
        <source>Programs wait for memory</source>
        <translation>Des programmes attendent de la mémoire</translation>
    </message>
    <message>
        <source>Forecast</source>
        <translation>Prévision</translation>
    </message>
    <message>
        <source>Memory full within 30 minutes</source>
        <translation>Mémoire pleine d’ici 30 minutes</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Mémoire épuisée</translation>
    </message>
    <message>
        <source>What was ended because memory ran out</source>
        <translation>Ce qui a été arrêté faute de mémoire</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>CPU saturation</source>
        <translation>Saturation du CPU</translation>
    </message>
    <message>
        <source>CPU threshold</source>
        <translation>Seuil de CPU</translation>
    </message>
    <message>
        <source>Thermal</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>Thermal pressure warning</source>
        <translation>Alerte de surchauffe</translation>
    </message>
    <message>
        <source>Idle agents</source>
        <translation>Agents inactifs</translation>
    </message>
    <message>
        <source>Flag idle Claude / agentic processes</source>
        <translation>Signaler les processus Claude et agents inactifs</translation>
    </message>
    <message>
        <source>Min idle</source>
        <translation>Inactivité min.</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1&#xa0;min</translation>
    </message>
    <message>
        <source>Min RAM</source>
        <translation>RAM min.</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;Mo</translation>
    </message>
    <message>
        <source>Browsers</source>
        <translation>Navigateurs</translation>
    </message>
    <message>
        <source>Browser RAM dominance</source>
        <translation>RAM dominée par les navigateurs</translation>
    </message>
    <message>
        <source>Of total RAM</source>
        <translation>De la RAM totale</translation>
    </message>
    <message>
        <source>Caches</source>
        <translation>Caches</translation>
    </message>
    <message>
        <source>Caches reclaimable</source>
        <translation>Caches récupérables</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Seuil</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>Sessions</translation>
    </message>
    <message>
        <source>Large session</source>
        <translation>Session volumineuse</translation>
    </message>
    <message>
        <source>Session holds more than</source>
        <translation>La session occupe plus de</translation>
    </message>
    <message>
        <source>Notify</source>
        <translation>Notifier</translation>
    </message>
    <message>
        <source>Notify: %1</source>
        <translation>Notifier&#x202f;: %1</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notifications</translation>
    </message>
    <message>
        <source>Notify of heavy swap usage</source>
        <translation>Notifier un usage intensif du swap</translation>
    </message>
    <message>
        <source>Notify of a finished long clean</source>
        <translation>Notifier la fin d’un long nettoyage</translation>
    </message>
    <message>
        <source>Quiet time</source>
        <translation>Heures calmes</translation>
    </message>
    <message>
        <source>Quiet from</source>
        <translation>Calme à partir de</translation>
    </message>
    <message>
        <source>Quiet until</source>
        <translation>Calme jusqu’à</translation>
    </message>
    <message>
        <source>This desktop has no service that shows notifications.</source>
        <translation>Ce bureau n’a aucun service qui affiche des notifications.</translation>
    </message>
    <message>
        <source>%1%</source>
        <comment>a share</comment>
        <translation>%1&#x202f;%</translation>
    </message>
</context>
<context>
    <name>AppMenu</name>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Paramètres…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
</context>
<context>
    <name>AutoOptimizeCard</name>
    <message>
        <source>Auto-Optimize</source>
        <translation>Optimisation automatique</translation>
    </message>
    <message>
        <source>Every 30 min: kill orphan MCPs + send memory pressure</source>
        <translation>Toutes les 30 min&#x202f;: tuer les MCP orphelins et envoyer une pression mémoire</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Only safe actions run on the timer. Quitting visible apps stays manual on purpose.</source>
        <translation>Seules des actions sûres sont automatiques. Quitter les applications visibles reste volontairement manuel.</translation>
    </message>
    <message>
        <source>Running in background</source>
        <translation>S’exécute en arrière-plan</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
</context>
<context>
    <name>CacheCard</name>
    <message>
        <source>Not scanned yet</source>
        <translation>Pas encore analysé</translation>
    </message>
    <message>
        <source>Scanned %1</source>
        <translation>Analysé %1</translation>
    </message>
    <message>
        <source>Not in Clean All.</source>
        <translation>Exclu de «&#x202f;Tout nettoyer&#x202f;».</translation>
    </message>
    <message>
        <source>not in Clean All</source>
        <translation>exclu de «&#x202f;Tout nettoyer&#x202f;»</translation>
    </message>
</context>
<context>
    <name>CacheDetailDrawer</name>
    <message>
        <source>%1 reclaimable</source>
        <translation>%1 récupérables</translation>
    </message>
    <message>
        <source>Will run: %1</source>
        <translation>Exécutera&#x202f;: %1</translation>
    </message>
    <message>
        <source>Breakdown</source>
        <translation>Répartition</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Mettre à la corbeille</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>Rien trouvé.</translation>
    </message>
    <message>
        <source>Rescan to see what it consists of.</source>
        <translation>Relancez l’analyse pour voir de quoi il se compose.</translation>
    </message>
    <message>
        <source>Clean %1</source>
        <translation>Nettoyer %1</translation>
    </message>
</context>
<context>
    <name>CacheScanner</name>
    <message>
        <source>%1 cannot be cleaned: %2.</source>
        <translation>Impossible de nettoyer %1&#x202f;: %2.</translation>
    </message>
    <message>
        <source>The tool calls %1 of it reclaimable.</source>
        <translation>Selon l’outil, %1 récupérables.</translation>
    </message>
</context>
<context>
    <name>CachesCard</name>
    <message>
        <source>Caches</source>
        <translation>Caches</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Clean All</source>
        <translation>Tout nettoyer</translation>
    </message>
    <message>
        <source>Stop cleaning</source>
        <translation>Arrêter le nettoyage</translation>
    </message>
    <message>
        <source>Stopping %1 (%2 of %3)</source>
        <translation>Arrêt de %1 (%2 sur %3)</translation>
    </message>
    <message>
        <source>Cleaning %1 (%2 of %3)</source>
        <translation>Nettoyage de %1 (%2 sur %3)</translation>
    </message>
    <message>
        <source>%1 reclaimable across %2 targets</source>
        <translation>%1 récupérables, cibles&#x202f;: %2</translation>
    </message>
    <message>
        <source>Measuring %1 (%2 of %3)</source>
        <translation>Mesure de %1 (%2 sur %3)</translation>
    </message>
    <message>
        <source>Nothing is measured yet. “Rescan” in the section Cleanup does that.</source>
        <translation>Rien n’est encore mesuré. «&#x202f;Réanalyser&#x202f;» dans la section Nettoyage le fait.</translation>
    </message>
</context>
<context>
    <name>CandidateRow</name>
    <message>
        <source>PID %1 • %2</source>
        <translation>PID %1 • %2</translation>
    </message>
    <message>
        <source>frees ≤ %1</source>
        <translation>libère ≤ %1</translation>
    </message>
    <message>
        <source>frees ≈ %1</source>
        <translation>libère ≈ %1</translation>
    </message>
    <message>
        <source>%1, %2, %3, idle %4, %5</source>
        <translation>%1, %2, %3, inactif depuis %4, %5</translation>
    </message>
</context>
<context>
    <name>Cleaner</name>
    <message>
        <source>stopped</source>
        <translation>arrêté</translation>
    </message>
    <message>
        <source>there is no trash</source>
        <translation>il n’y a pas de corbeille</translation>
    </message>
    <message>
        <source>its name is no text</source>
        <translation>son nom n’est pas un texte</translation>
    </message>
    <message>
        <source>%1 was not moved to the trash: %2</source>
        <translation>%1 n’a pas été mis à la corbeille&#x202f;: %2</translation>
    </message>
    <message>
        <source>only old files can be moved</source>
        <translation>seuls d’anciens fichiers peuvent être déplacés</translation>
    </message>
    <message>
        <source>it could not be listed</source>
        <translation>impossible d’en dresser la liste</translation>
    </message>
</context>
<context>
    <name>CleanupChoice</name>
    <message>
        <source>No volumes go</source>
        <translation>Aucun volume ne sera supprimé</translation>
    </message>
    <message>
        <source>Volumes that go, with all that is in them: %1</source>
        <translation>Volumes supprimés avec tout leur contenu&#x202f;: %1</translation>
    </message>
</context>
<context>
    <name>CleanupConfirmation</name>
    <message>
        <source>Delete %1?</source>
        <translation>Supprimer %1&#x202f;?</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>Supprimer %1</translation>
    </message>
    <message>
        <source>Clean all reclaimable caches?</source>
        <translation>Nettoyer tous les caches récupérables&#x202f;?</translation>
    </message>
    <message>
        <source>Clean %1</source>
        <translation>Nettoyer %1</translation>
    </message>
</context>
<context>
    <name>CleanupPreview</name>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Tick all that is shown</source>
        <translation>Cocher tout ce qui est affiché</translation>
    </message>
    <message>
        <source>Leave out all that is shown</source>
        <translation>Exclure tout ce qui est affiché</translation>
    </message>
    <message>
        <source>Could not look into %1: %2</source>
        <translation>Impossible d’examiner %1&#x202f;: %2</translation>
    </message>
    <message>
        <source>%1 will come back</source>
        <translation>%1 seront récupérés</translation>
    </message>
    <message numerus="yes">
        <source> • %n left out</source>
        <translation>
            <numerusform> • %n exclu</numerusform>
            <numerusform> • %n exclus</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CleanupPreviewModel</name>
    <message>
        <source>changed %1</source>
        <translation>modifié %1</translation>
    </message>
    <message>
        <source>in use</source>
        <translation>en cours d’utilisation</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Modifié</translation>
    </message>
</context>
<context>
    <name>CleanupPreviewView</name>
    <message>
        <source>What goes</source>
        <translation>Ce qui sera supprimé</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Exclure</translation>
    </message>
    <message>
        <source>Include</source>
        <translation>Inclure</translation>
    </message>
    <message>
        <source>Reveal</source>
        <translation>Montrer dans le dossier</translation>
    </message>
    <message>
        <source>Could not open %1.</source>
        <translation>Impossible d’ouvrir %1.</translation>
    </message>
    <message>
        <source>Nothing here has the text of the search. What is ticked stays so.</source>
        <translation>Rien ici ne contient le texte recherché. Ce qui est coché le reste.</translation>
    </message>
</context>
<context>
    <name>CleanupTab</name>
    <message>
        <source>Cleanup</source>
        <translation>Nettoyage</translation>
    </message>
    <message>
        <source>Questions</source>
        <translation>Confirmations</translation>
    </message>
    <message>
        <source>Ask before cleaning everything</source>
        <translation>Demander avant de tout nettoyer</translation>
    </message>
    <message>
        <source>When off, “Clean All” in Optimize starts at once.</source>
        <translation>Si désactivé, «&#x202f;Tout nettoyer&#x202f;» dans Optimiser démarre aussitôt.</translation>
    </message>
    <message>
        <source>Never clean</source>
        <translation>Ne jamais nettoyer</translation>
    </message>
    <message>
        <source>Nothing is excluded.</source>
        <translation>Rien n’est exclu.</translation>
    </message>
    <message>
        <source>Path or pattern, such as *.gguf</source>
        <translation>Chemin ou motif, par exemple *.gguf</translation>
    </message>
    <message>
        <source>Neither counted nor removed. A path keeps all below it.</source>
        <translation>Ni compté ni supprimé. Un chemin protège tout ce qu’il contient.</translation>
    </message>
    <message>
        <source>Project folders</source>
        <translation>Dossiers de projets</translation>
    </message>
    <message>
        <source>Your home folder</source>
        <translation>Votre dossier personnel</translation>
    </message>
    <message>
        <source>Where “Project leftovers” looks for projects. Hidden folders and other disks are left out.</source>
        <translation>Où «&#x202f;Restes de projets&#x202f;» cherche les projets. Les dossiers cachés et les autres disques sont ignorés.</translation>
    </message>
</context>
<context>
    <name>CleanupTexts</name>
    <message>
        <source>“%1”</source>
        <comment>a name</comment>
        <translation>«&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 de plus</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 et %2</translation>
    </message>
    <message numerus="yes">
        <source>%n volume(s), %1</source>
        <translation>
            <numerusform>%n volume, %1</numerusform>
            <numerusform>%n volumes, %1</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Gone for good: %1</source>
        <translation>Supprimé définitivement&#x202f;: %1</translation>
    </message>
    <message>
        <source>Gone for good</source>
        <translation>Supprimé définitivement</translation>
    </message>
    <message>
        <source>Runs %1</source>
        <translation>Exécute %1</translation>
    </message>
    <message>
        <source>These are files of yours, no caches. They will be gone for good.</source>
        <translation>Ce sont vos fichiers, pas des caches. Ils seront supprimés définitivement.</translation>
    </message>
    <message>
        <source>These files of yours will be gone for good: %1.</source>
        <translation>Ces fichiers à vous seront supprimés définitivement&#x202f;: %1.</translation>
    </message>
    <message>
        <source>Gone for good, with all that is in them: %1.</source>
        <translation>Supprimés définitivement, avec tout leur contenu&#x202f;: %1.</translation>
    </message>
    <message>
        <source>Stopped containers go too. Images and build caches are fetched or built again as needed.</source>
        <translation>Les conteneurs arrêtés sont supprimés aussi. Les images et caches de compilation sont retéléchargés ou refaits au besoin.</translation>
    </message>
    <message>
        <source>Deleting cache files. Apps will rebuild caches as needed.</source>
        <translation>Suppression de fichiers de cache. Les applications reconstruiront leurs caches au besoin.</translation>
    </message>
    <message>
        <source>What goes: %1.</source>
        <translation>Ce qui sera supprimé&#x202f;: %1.</translation>
    </message>
    <message>
        <source>No volumes go.</source>
        <translation>Aucun volume ne sera supprimé.</translation>
    </message>
    <message>
        <source>Runs every cleanup with a size estimate above 0.</source>
        <translation>Lance chaque nettoyage dont la taille estimée dépasse 0.</translation>
    </message>
    <message>
        <source>Apps will rebuild caches as needed.</source>
        <translation>Les applications reconstruiront leurs caches au besoin.</translation>
    </message>
    <message>
        <source>Not so with what is yours. It will be gone for good: %1.</source>
        <translation>Ce n’est pas le cas de vos propres données. Elles seront supprimées définitivement&#x202f;: %1.</translation>
    </message>
    <message>
        <source>Some of them overlap; the total counts what they share once.</source>
        <translation>Certains se recouvrent&#x202f;; le total ne compte qu’une fois ce qu’ils partagent.</translation>
    </message>
    <message>
        <source>Stopped: cleaned %1 of %2 targets, freed ~%3</source>
        <translation>Arrêté&#x202f;: %1 cibles sur %2, ~%3 libérés</translation>
    </message>
    <message>
        <source>Cleaned %1 targets, freed ~%2</source>
        <translation>Cibles nettoyées&#x202f;: %1, ~%2 libérés</translation>
    </message>
    <message>
        <source>%1 came back on the disk</source>
        <translation>%1 récupérés sur le disque</translation>
    </message>
    <message>
        <source>Not finished: %1</source>
        <translation>Inachevé&#x202f;: %1</translation>
    </message>
    <message>
        <source>It is unknown which volumes go, with all that is in them.</source>
        <translation>On ignore quels volumes disparaîtront, avec tout leur contenu.</translation>
    </message>
    <message>
        <source>unknown volumes</source>
        <translation>volumes inconnus</translation>
    </message>
</context>
<context>
    <name>CleanupView</name>
    <message>
        <source>Show all</source>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>Réanalyser</translation>
    </message>
    <message>
        <source>Clean All</source>
        <translation>Tout nettoyer</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <translation>Nettoyage</translation>
    </message>
    <message>
        <source>Also what this computer has nothing of</source>
        <translation>Aussi ce dont cet ordinateur n’a rien</translation>
    </message>
    <message>
        <source>Cleanup targets</source>
        <translation>Cibles de nettoyage</translation>
    </message>
    <message>
        <source>Stop cleaning</source>
        <translation>Arrêter le nettoyage</translation>
    </message>
    <message>
        <source>Reclaimable: %1</source>
        <translation>Récupérable&#x202f;: %1</translation>
    </message>
    <message>
        <source>Build folders of your projects, which their tools make again.</source>
        <translation>Dossiers de compilation de vos projets, que leurs outils recréent.</translation>
    </message>
    <message>
        <source>Stopping %1 (%2 of %3)</source>
        <translation>Arrêt de %1 (%2 sur %3)</translation>
    </message>
    <message>
        <source>Cleaning %1 (%2 of %3)</source>
        <translation>Nettoyage de %1 (%2 sur %3)</translation>
    </message>
    <message>
        <source>Measuring %1 (%2 of %3)</source>
        <translation>Mesure de %1 (%2 sur %3)</translation>
    </message>
    <message>
        <source>nothing is measured yet: “Rescan” does that</source>
        <translation>rien n’est encore mesuré&#x202f;: «&#x202f;Réanalyser&#x202f;» le fait</translation>
    </message>
    <message>
        <source>Stop measuring</source>
        <translation>Arrêter la mesure</translation>
    </message>
</context>
<context>
    <name>Columns</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>PID</source>
        <translation>PID</translation>
    </message>
    <message>
        <source>CPU%</source>
        <translation>CPU %</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>RAM</source>
        <translation>RAM</translation>
    </message>
    <message>
        <source>Own</source>
        <translation>Propre</translation>
    </message>
    <message>
        <source>Memory that no other process shares</source>
        <translation>Mémoire qu’aucun autre processus ne partage</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Swap</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>Threads</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Inactif</translation>
    </message>
    <message>
        <source>Procs</source>
        <translation>Proc.</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Actions</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Détail</translation>
    </message>
    <message>
        <source>Freed</source>
        <translation>Libéré</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Motif</translation>
    </message>
    <message>
        <source>Idle≥</source>
        <translation>Inact. ≥</translation>
    </message>
    <message>
        <source>RAM≥</source>
        <translation>RAM ≥</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Forcer</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>Disk read</source>
        <translation>Lecture disque</translation>
    </message>
    <message>
        <source>Read from disks a second, of your own processes</source>
        <translation>Lu sur les disques par seconde, pour vos propres processus</translation>
    </message>
    <message>
        <source>Disk write</source>
        <translation>Écriture disque</translation>
    </message>
    <message>
        <source>Written to disks a second, of your own processes</source>
        <translation>Écrit sur les disques par seconde, pour vos propres processus</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Démarré</translation>
    </message>
    <message>
        <source>Parent</source>
        <translation>Parent</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Session</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>CpuPage</name>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>All cores</source>
        <translation>Tous les cœurs</translation>
    </message>
    <message>
        <source>Core %1</source>
        <translation>Cœur %1</translation>
    </message>
</context>
<context>
    <name>DetailPage</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>since %1, while this page is open</source>
        <translation>depuis %1, tant que cette page est ouverte</translation>
    </message>
</context>
<context>
    <name>DiskPage</name>
    <message>
        <source>%1 free of %2</source>
        <translation>%1 libres sur %2</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Disque</translation>
    </message>
    <message>
        <source>%1 read</source>
        <translation>%1 lus</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 écrits</translation>
    </message>
    <message>
        <source>No figures of reading and writing</source>
        <translation>Aucune valeur de lecture ni d’écriture</translation>
    </message>
    <message>
        <source>This computer shows programs no disk of its own, as many containers. What single processes read and write is in columns of the Processes section.</source>
        <translation>Cet ordinateur ne montre aux programmes aucun disque à lui, comme beaucoup de conteneurs. Ce que chaque processus lit et écrit figure dans des colonnes de la section Processus.</translation>
    </message>
    <message>
        <source>Being read…</source>
        <translation>Lecture en cours…</translation>
    </message>
    <message>
        <source>Read and written</source>
        <translation>Lu et écrit</translation>
    </message>
    <message>
        <source>No volume of a disk is mounted here. The tile shows the space of the root folder.</source>
        <translation>Aucun volume de disque n’est monté ici. La tuile montre l’espace du dossier racine.</translation>
    </message>
    <message>
        <source>A disk does not answer. It is asked again once it does, while this page is open.</source>
        <translation>Un disque ne répond pas. Il sera de nouveau interrogé dès qu’il répondra, tant que cette page est ouverte.</translation>
    </message>
</context>
<context>
    <name>DismissButton</name>
    <message>
        <source>Dismiss</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>EndDialog</name>
    <message>
        <source>Processes</source>
        <translation>Processus</translation>
    </message>
    <message numerus="yes">
        <source>%1 %n process(es) run below it.</source>
        <translation>
            <numerusform>%1 %n processus s’exécute en dessous.</numerusform>
            <numerusform>%1 %n processus s’exécutent en dessous.</numerusform>
        </translation>
    </message>
    <message>
        <source>Force kill %1?</source>
        <translation>Forcer l’arrêt de %1&#xa0;?</translation>
    </message>
    <message>
        <source>Quit %1?</source>
        <translation>Quitter %1&#x202f;?</translation>
    </message>
    <message numerus="yes">
        <source>Force kill %n process(es)?</source>
        <translation>
            <numerusform>Forcer l’arrêt de %n processus&#xa0;?</numerusform>
            <numerusform>Forcer l’arrêt de %n processus&#xa0;?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Quit %n process(es)?</source>
        <translation>
            <numerusform>Quitter %n processus&#xa0;?</numerusform>
            <numerusform>Quitter %n processus&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>They hold %1. They end at once, and what is not saved is lost.</source>
        <translation>Ils occupent %1. Ils s’arrêtent aussitôt, et ce qui n’est pas enregistré est perdu.</translation>
    </message>
    <message>
        <source>They hold %1. They are asked to end, and may lose what is not saved.</source>
        <translation>Ils occupent %1. Il leur est demandé de s’arrêter, et ils peuvent perdre ce qui n’est pas enregistré.</translation>
    </message>
    <message>
        <source>PID %1 holds %2. It ends at once, and what is not saved is lost.</source>
        <translation>Le PID %1 occupe %2. Il s’arrête aussitôt, et ce qui n’est pas enregistré est perdu.</translation>
    </message>
    <message>
        <source>PID %1 holds %2. It is asked to end, and may lose what is not saved.</source>
        <translation>Le PID %1 occupe %2. Il lui sera demandé de s’arrêter&#x202f;; il peut perdre ce qui n’est pas enregistré.</translation>
    </message>
    <message>
        <source>Force kill</source>
        <translation>Arrêt forcé</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Force kill %1</source>
        <translation>Forcer l’arrêt de %1</translation>
    </message>
    <message>
        <source>Quit %1</source>
        <translation>Quitter %1</translation>
    </message>
</context>
<context>
    <name>Formatters</name>
    <message>
        <source>%1 KB</source>
        <translation>%1&#xa0;Ko</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;Mo</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1&#xa0;Go</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1&#xa0;To</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <translation>%1&#xa0;Po</translation>
    </message>
    <message>
        <source>%1 EB</source>
        <translation>%1&#xa0;Eo</translation>
    </message>
    <message>
        <source>%1s</source>
        <comment>seconds</comment>
        <translation>%1&#xa0;s</translation>
    </message>
    <message>
        <source>%1m</source>
        <comment>minutes</comment>
        <translation>%1&#xa0;min</translation>
    </message>
    <message>
        <source>%1h</source>
        <comment>hours</comment>
        <translation>%1&#xa0;h</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n octet</numerusform>
            <numerusform>%n octets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n year(s) ago</source>
        <translation>
            <numerusform>il y a %n an</numerusform>
            <numerusform>il y a %n ans</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n month(s) ago</source>
        <translation>
            <numerusform>il y a %n mois</numerusform>
            <numerusform>il y a %n mois</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n week(s) ago</source>
        <translation>
            <numerusform>il y a %n semaine</numerusform>
            <numerusform>il y a %n semaines</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n day(s) ago</source>
        <translation>
            <numerusform>il y a %n jour</numerusform>
            <numerusform>il y a %n jours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s) ago</source>
        <translation>
            <numerusform>il y a %n heure</numerusform>
            <numerusform>il y a %n heures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s) ago</source>
        <translation>
            <numerusform>il y a %n minute</numerusform>
            <numerusform>il y a %n minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n second(s) ago</source>
        <translation>
            <numerusform>il y a %n seconde</numerusform>
            <numerusform>il y a %n secondes</numerusform>
        </translation>
    </message>
    <message>
        <source>just now</source>
        <translation>à l’instant</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1&#x202f;%</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the items of a list</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>%1.</source>
        <comment>a sentence</comment>
        <translation>%1.</translation>
    </message>
</context>
<context>
    <name>FreeRAMResultView</name>
    <message>
        <source>• memory_pressure nudged</source>
        <translation>• memory_pressure envoyé</translation>
    </message>
    <message>
        <source>Freed ~%1</source>
        <translation>~%1 libérés</translation>
    </message>
    <message>
        <source>• stopped</source>
        <translation>• arrêté</translation>
    </message>
</context>
<context>
    <name>FreeRAMSheet</name>
    <message>
        <source>Min idle: %1 min</source>
        <translation>Inactivité min.&#x202f;: %1&#xa0;min</translation>
    </message>
    <message>
        <source>Min RAM: %1 MB</source>
        <translation>RAM min.&#x202f;: %1&#xa0;Mo</translation>
    </message>
    <message>
        <source>Other programs too</source>
        <translation>Autres programmes aussi</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Tout désélectionner</translation>
    </message>
    <message>
        <source>Free RAM</source>
        <translation>Libérer la RAM</translation>
    </message>
    <message>
        <source>Tick the processes you want to terminate. SIGTERM is sent first; anything still running after 2 s gets SIGKILL. %1 is then nudged with a memory-pressure hint to compress inactive pages.</source>
        <translation>Cochez les processus à terminer. SIGTERM est envoyé d’abord&#x202f;; ce qui tourne encore après 2 s reçoit SIGKILL. Une pression mémoire incite ensuite %1 à compresser les pages inactives.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Lists programs of no known group under a gigabyte as well</source>
        <translation>Liste aussi les programmes sans groupe connu de moins d’un gigaoctet</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Processus</translation>
    </message>
    <message>
        <source>No idle hogs above your thresholds</source>
        <translation>Aucun processus gourmand inactif au-dessus de vos seuils</translation>
    </message>
    <message>
        <source>Lower the Min idle slider to see lightly-used processes.</source>
        <translation>Réduisez l’inactivité minimale pour voir les processus peu utilisés.</translation>
    </message>
    <message>
        <source>%1 selected • %2 targeted</source>
        <translation>%1 sélectionnés • %2 visés</translation>
    </message>
    <message>
        <source>Killing…</source>
        <translation>Arrêt en cours…</translation>
    </message>
    <message>
        <source>Kill %1 and free RAM</source>
        <translation>Tuer %1 et libérer la RAM</translation>
    </message>
    <message>
        <source>Send memory pressure only</source>
        <translation>Envoyer seulement une pression mémoire</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Kills nothing more; what still runs is left alone</source>
        <translation>N’arrête plus rien de force ; ce qui tourne encore est laissé tel quel</translation>
    </message>
</context>
<context>
    <name>FreedesktopLoginItem</name>
    <message>
        <source>The program&apos;s own file cannot be found.</source>
        <translation>Le fichier du programme est introuvable.</translation>
    </message>
</context>
<context>
    <name>FreedesktopPlaces</name>
    <message>
        <source>%1 is left alone: a whole file system is mounted there.</source>
        <translation>%1 est laissé tel quel&#x202f;: un système de fichiers entier y est monté.</translation>
    </message>
    <message>
        <source>%1 is left alone: it is a link.</source>
        <translation>%1 est laissé tel quel&#x202f;: c’est un lien.</translation>
    </message>
    <message>
        <source>%1 is left alone: it holds more than that, in %2.</source>
        <translation>%1 est laissé tel quel&#x202f;: il contient davantage, dans %2.</translation>
    </message>
    <message>
        <source>%1 is left alone: all programs share it.</source>
        <translation>%1 est laissé tel quel&#x202f;: tous les programmes le partagent.</translation>
    </message>
    <message>
        <source>%1 is left alone: the folder of caches must have nothing to do with %2.</source>
        <translation>%1 est laissé tel quel&#x202f;: le dossier des caches ne doit rien avoir à faire avec %2.</translation>
    </message>
</context>
<context>
    <name>FreedesktopTargets</name>
    <message>
        <source>Gradle fetches its packages and its own versions again.</source>
        <translation>Gradle retélécharge ses paquets et ses propres versions.</translation>
    </message>
    <message>
        <source>Old logs of Gradle&apos;s background processes. Gradle writes new ones.</source>
        <translation>Anciens journaux des processus d’arrière-plan de Gradle. Gradle en écrit de nouveaux.</translation>
    </message>
    <message>
        <source>Maven fetches packages again. Those that were only installed here must be built again.</source>
        <translation>Maven retélécharge les paquets. Ceux qui n’ont été installés qu’ici doivent être recompilés.</translation>
    </message>
    <message>
        <source>Both fetch their packages again.</source>
        <translation>Tous deux retéléchargent leurs paquets.</translation>
    </message>
    <message>
        <source>Cargo unpacks sources again, and fetches repositories again.</source>
        <translation>Cargo redécompresse les sources et retélécharge les dépôts.</translation>
    </message>
    <message>
        <source>Go compiles packages again.</source>
        <translation>Go recompile les paquets.</translation>
    </message>
    <message>
        <source>Toolchains that are not the default. A project may still name one: rustup fetches it again, but not one of your own.</source>
        <translation>Chaînes d’outils autres que celle par défaut. Un projet peut encore en nommer une&#x202f;: rustup la retélécharge, sauf si elle est de vous.</translation>
    </message>
    <message>
        <source>Yarn and Corepack fetch it again.</source>
        <translation>Yarn et Corepack le retéléchargent.</translation>
    </message>
    <message>
        <source>Conda fetches packages again. Environments keep theirs, unless they are set to link to this folder.</source>
        <translation>Conda retélécharge les paquets. Les environnements gardent les leurs, sauf s’ils renvoient à ce dossier.</translation>
    </message>
    <message>
        <source>Poetry fetches its packages again. Environments stay.</source>
        <translation>Poetry retélécharge ses paquets. Les environnements restent.</translation>
    </message>
    <message>
        <source>pre-commit installs its hooks again.</source>
        <translation>pre-commit réinstalle ses hooks.</translation>
    </message>
    <message>
        <source>Compiled objects. The next builds take longer and fill it again.</source>
        <translation>Objets compilés. Les prochaines compilations durent plus longtemps et le remplissent de nouveau.</translation>
    </message>
    <message>
        <source>Files that Bazel has fetched. It fetches them again.</source>
        <translation>Fichiers téléchargés par Bazel. Il les retélécharge.</translation>
    </message>
    <message>
        <source>Conan fetches or builds packages again. Recipes that are only here are gone.</source>
        <translation>Conan retélécharge ou recompile les paquets. Les recettes qui ne sont qu’ici disparaissent.</translation>
    </message>
    <message>
        <source>vcpkg builds its packages again.</source>
        <translation>vcpkg recompile ses paquets.</translation>
    </message>
    <message>
        <source>Editors make them again. Settings, open work and history stay.</source>
        <translation>Les éditeurs les recréent. Paramètres, travail ouvert et historique restent.</translation>
    </message>
    <message>
        <source>Earlier states of your files. Nothing brings them back.</source>
        <translation>États antérieurs de vos fichiers. Rien ne les ramène.</translation>
    </message>
    <message>
        <source>Logs of coding agents that no agent reads again. Conversations stay.</source>
        <translation>Journaux d’agents de programmation qu’aucun agent ne relit. Les conversations restent.</translation>
    </message>
    <message>
        <source>Settings of shells for agents that ended long ago. An agent makes its own at its start.</source>
        <translation>Réglages de shell d’agents terminés depuis longtemps. Un agent crée les siens au démarrage.</translation>
    </message>
    <message>
        <source>Long texts that you pasted. Old prompts in the history refer to them.</source>
        <translation>Longs textes que vous avez collés. D’anciennes demandes de l’historique y renvoient.</translation>
    </message>
    <message>
        <source>Models and data sets. What is public can be fetched again.</source>
        <translation>Modèles et jeux de données. Ce qui est public peut être retéléchargé.</translation>
    </message>
    <message>
        <source>Parts of models, named after them. Those that you made here are gone for good.</source>
        <translation>Parties de modèles, nommées d’après eux. Ceux créés ici sont perdus définitivement.</translation>
    </message>
    <message>
        <source>Models. What is public can be fetched again.</source>
        <translation>Modèles. Ce qui est public peut être retéléchargé.</translation>
    </message>
    <message>
        <source>Applications make their caches again.</source>
        <translation>Les applications recréent leurs caches.</translation>
    </message>
    <message>
        <source>Small pictures of your files. File managers make them again.</source>
        <translation>Petites images de vos fichiers. Les gestionnaires de fichiers les recréent.</translation>
    </message>
    <message>
        <source>The graphics driver compiles shaders again. Games may stutter at first.</source>
        <translation>Le pilote graphique recompile les shaders. Les jeux peuvent saccader au début.</translation>
    </message>
    <message>
        <source>Reports of crashes that are a week old. They only help to find the fault.</source>
        <translation>Rapports de plantage vieux d’une semaine. Ils ne servent qu’à trouver la panne.</translation>
    </message>
    <message>
        <source>Podman fetches or builds images again. Stopped containers go.</source>
        <translation>Podman retélécharge ou recompile les images. Les conteneurs arrêtés sont supprimés.</translation>
    </message>
    <message>
        <source>They are installed already. The system asks for a password.</source>
        <translation>Ils sont déjà installés. Le système demande un mot de passe.</translation>
    </message>
    <message>
        <source>Old messages of the system go, the newest stay. It asks for a password.</source>
        <translation>Les anciens messages du système sont supprimés, les plus récents restent. Un mot de passe est demandé.</translation>
    </message>
</context>
<context>
    <name>GeneralTab</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Démarrage</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Lancer à l’ouverture de session</translation>
    </message>
    <message>
        <source>Show floating widget on launch</source>
        <translation>Afficher le widget flottant au lancement</translation>
    </message>
    <message>
        <source>Show in %1</source>
        <translation>Afficher dans %1</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Texts, numbers and dates</source>
        <translation>Textes, nombres et dates</translation>
    </message>
    <message>
        <source>Takes effect at the next start.</source>
        <translation>Prend effet au prochain démarrage.</translation>
    </message>
    <message>
        <source>Couldn&apos;t register: %1</source>
        <translation>Échec de l’enregistrement&#x202f;: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t unregister: %1</source>
        <translation>Échec de la suppression de l’enregistrement&#x202f;: %1</translation>
    </message>
</context>
<context>
    <name>Graph</name>
    <message>
        <source>%1 °C</source>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>%1/s</source>
        <comment>bytes in a second</comment>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>The line begins with the next figure.</source>
        <translation>La courbe commence avec la prochaine valeur.</translation>
    </message>
</context>
<context>
    <name>GroupHeader</name>
    <message>
        <source>%1 (%2), %3, %4 CPU</source>
        <translation>%1 (%2), %3, %4 de CPU</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Développé</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Réduit</translation>
    </message>
    <message>
        <source>• %1 CPU</source>
        <translation>• %1 de CPU</translation>
    </message>
</context>
<context>
    <name>GroupRow</name>
    <message>
        <source>… +%1 more in Processes tab</source>
        <translation>… +%1 autres dans l’onglet Processus</translation>
    </message>
</context>
<context>
    <name>HistoryTab</name>
    <message>
        <source>Action history</source>
        <translation>Historique des actions</translation>
    </message>
    <message>
        <source>No actions logged yet.</source>
        <translation>Aucune action enregistrée.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Arrêt</translation>
    </message>
    <message>
        <source>Force kill</source>
        <translation>Arrêt forcé</translation>
    </message>
    <message>
        <source>Clean</source>
        <translation>Nettoyage</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>Exporter en CSV…</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>Vider le journal</translation>
    </message>
    <message>
        <source>Export CSV</source>
        <translation>Exporter en CSV</translation>
    </message>
    <message>
        <source>Comma-separated text (*.csv)</source>
        <translation>Texte séparé par des virgules (*.csv)</translation>
    </message>
    <message>
        <source>Clear action history?</source>
        <translation>Effacer l’historique des actions&#x202f;?</translation>
    </message>
    <message>
        <source>This deletes ~/Library/Logs/Tavrin/actions.log.</source>
        <translation>Cela supprime ~/Library/Logs/Tavrin/actions.log.</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Tout effacer</translation>
    </message>
    <message>
        <source>That file is the log itself.</source>
        <translation>Ce fichier est le journal lui-même.</translation>
    </message>
    <message>
        <source>The log was not exported. Choose another place.</source>
        <translation>Le journal n’a pas été exporté. Choisissez un autre emplacement.</translation>
    </message>
    <message>
        <source>Show all kinds</source>
        <translation>Afficher tous les types</translation>
    </message>
</context>
<context>
    <name>HistoryTableModel</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
</context>
<context>
    <name>IncidentDialog</name>
    <message>
        <source>%1 more than at first</source>
        <translation>%1 de plus qu’au début</translation>
    </message>
    <message>
        <source>%1 less than at first</source>
        <translation>%1 de moins qu’au début</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>From %1 to %2</source>
        <translation>De %1 à %2</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>Waited for memory</source>
        <translation>Attente de mémoire</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Largest processes then</source>
        <translation>Plus gros processus à ce moment</translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>Listens on %1</source>
        <translation>Écoute sur %1</translation>
    </message>
    <message>
        <source>Program of the group %1</source>
        <translation>Programme du groupe %1</translation>
    </message>
    <message>
        <source>Program of no known group</source>
        <translation>Programme d’aucun groupe connu</translation>
    </message>
    <message>
        <source>%1, %2 ago</source>
        <comment>a point in time, and how long ago</comment>
        <translation>%1, il y a %2</translation>
    </message>
    <message>
        <source>MCP server %1 for %2</source>
        <translation>Serveur MCP %1 pour %2</translation>
    </message>
    <message>
        <source>MCP server %1, which nobody uses any more</source>
        <translation>Serveur MCP %1, que plus personne n’utilise</translation>
    </message>
    <message>
        <source>Coding agent %1</source>
        <translation>Agent de programmation %1</translation>
    </message>
    <message>
        <source>MCP server for %1</source>
        <translation>Serveur MCP pour %1</translation>
    </message>
    <message>
        <source>Dev server of %1</source>
        <translation>Serveur de développement de %1</translation>
    </message>
    <message>
        <source>Dev server on %1 of %2</source>
        <translation>Serveur de développement sur %1 de %2</translation>
    </message>
    <message>
        <source>Browser of %1</source>
        <translation>Navigateur de %1</translation>
    </message>
    <message>
        <source>Command of %1</source>
        <translation>Commande de %1</translation>
    </message>
    <message>
        <source>Renderer of %1: a page or an extension</source>
        <translation>Moteur de rendu de %1&#xa0;: une page ou une extension</translation>
    </message>
    <message>
        <source>Graphics process of %1</source>
        <translation>Processus graphique de %1</translation>
    </message>
    <message>
        <source>Service process of %1</source>
        <translation>Processus de service de %1</translation>
    </message>
    <message>
        <source>Process that %1 starts others from</source>
        <translation>Processus à partir duquel %1 en lance d’autres</translation>
    </message>
    <message>
        <source>Content process of %1: pages or extensions</source>
        <translation>Processus de contenu de %1&#xa0;: pages ou extensions</translation>
    </message>
</context>
<context>
    <name>InspectorPanel</name>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Force kill</source>
        <translation>Arrêt forcé</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>Show files</source>
        <translation>Afficher les fichiers</translation>
    </message>
    <message>
        <source>Show environment</source>
        <translation>Afficher l’environnement</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>Where it is from</source>
        <translation>Origine</translation>
    </message>
    <message>
        <source>PID</source>
        <translation>PID</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Démarré</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>Threads</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Session</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Control group</source>
        <translation>Groupe de contrôle</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy the command</source>
        <translation>Copier la commande</translation>
    </message>
    <message>
        <source>Started from</source>
        <translation>Lancé depuis</translation>
    </message>
    <message>
        <source>Its parents are not listed.</source>
        <translation>Ses parents ne figurent pas dans la liste.</translation>
    </message>
    <message>
        <source>Close the details</source>
        <translation>Fermer les détails</translation>
    </message>
    <message>
        <source>Choose a process in the table.</source>
        <translation>Choisissez un processus dans le tableau.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Environment</source>
        <translation>Environnement</translation>
    </message>
    <message>
        <source>It has ended.</source>
        <translation>Il est terminé.</translation>
    </message>
    <message>
        <source>Quit %1</source>
        <translation>Quitter %1</translation>
    </message>
    <message>
        <source>Force kill %1</source>
        <translation>Forcer l’arrêt de %1</translation>
    </message>
    <message numerus="yes">
        <source>%n open file(s)</source>
        <translation>
            <numerusform>%n fichier ouvert</numerusform>
            <numerusform>%n fichiers ouverts</numerusform>
        </translation>
    </message>
    <message>
        <source>listens on %1</source>
        <translation>écoute sur %1</translation>
    </message>
    <message>
        <source>Unknown: the system tells it only of your own processes.</source>
        <translation>Inconnu&#xa0;: le système ne l’indique que pour vos propres processus.</translation>
    </message>
    <message>
        <source>Being read…</source>
        <translation>Lecture en cours…</translation>
    </message>
    <message>
        <source>Open files</source>
        <translation>Fichiers ouverts</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>Les %1 premiers sont listés.</translation>
    </message>
    <message>
        <source>The system refuses it</source>
        <translation>Le système le refuse</translation>
    </message>
    <message>
        <source>hidden, as it may be a secret</source>
        <translation>masqué, car il peut s’agir d’un secret</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Il est vide.</translation>
    </message>
    <message>
        <source>Unknown: it has ended.</source>
        <translation>Inconnu&#x202f;: il s’est terminé.</translation>
    </message>
</context>
<context>
    <name>LeaveOutOffer</name>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>You left this out twice. The Cleanup settings have the list.</source>
        <translation>Vous avez exclu ceci deux fois. La liste se trouve dans les paramètres de nettoyage.</translation>
    </message>
    <message>
        <source>Never clean this?</source>
        <translation>Ne jamais nettoyer ceci&#x202f;?</translation>
    </message>
    <message>
        <source>Never Clean</source>
        <translation>Ne jamais nettoyer</translation>
    </message>
</context>
<context>
    <name>LeftoverTexts</name>
    <message>
        <source>unknown</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>in use by %1</source>
        <translation>utilisé par %1</translation>
    </message>
    <message>
        <source>uncommitted changes</source>
        <translation>modifications non validées</translation>
    </message>
    <message numerus="yes">
        <source>Stopped: removed %n folder(s), freed ~%1</source>
        <translation>
            <numerusform>Arrêté&#x202f;: %n dossier supprimé, ~%1 libérés</numerusform>
            <numerusform>Arrêté&#x202f;: %n dossiers supprimés, ~%1 libérés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Removed %n folder(s), freed ~%1</source>
        <translation>
            <numerusform>%n dossier supprimé, ~%1 libérés</numerusform>
            <numerusform>%n dossiers supprimés, ~%1 libérés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n project(s) found</source>
        <translation>
            <numerusform>%n projet trouvé</numerusform>
            <numerusform>%n projets trouvés</numerusform>
        </translation>
    </message>
    <message>
        <source>Looking in %1</source>
        <translation>Recherche dans %1</translation>
    </message>
    <message>
        <source>Removing %1</source>
        <translation>Suppression de %1</translation>
    </message>
</context>
<context>
    <name>MCPCard</name>
    <message>
        <source>Claude Code &amp; MCP</source>
        <translation>Claude Code et MCP</translation>
    </message>
    <message>
        <source>Loaded servers + orphan detection</source>
        <translation>Serveurs chargés et détection d’orphelins</translation>
    </message>
    <message>
        <source>Configured</source>
        <translation>Configurés</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>Orphans</source>
        <translation>Orphelins</translation>
    </message>
    <message>
        <source>Orphan RAM</source>
        <translation>RAM orpheline</translation>
    </message>
    <message>
        <source>Kill orphans</source>
        <translation>Tuer les orphelins</translation>
    </message>
    <message>
        <source>Running servers</source>
        <translation>Serveurs en cours</translation>
    </message>
    <message>
        <source>No ~/.claude/mcp.json found — nothing configured globally.</source>
        <translation>Aucun ~/.claude/mcp.json trouvé — rien de configuré globalement.</translation>
    </message>
    <message>
        <source>A configuration file is being read. Its servers are counted after that.</source>
        <translation>Un fichier de configuration est en cours de lecture. Ses serveurs seront comptés ensuite.</translation>
    </message>
</context>
<context>
    <name>MCPInspector</name>
    <message>
        <source>(%1 or gone)</source>
        <translation>(%1 ou disparu)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Close Window</source>
        <translation>Fermer la fenêtre</translation>
    </message>
    <message>
        <source>Show or Hide Sidebar</source>
        <translation>Afficher ou masquer la barre latérale</translation>
    </message>
</context>
<context>
    <name>MemoryCard</name>
    <message>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>Free RAM without quitting your work</source>
        <translation>Libérer de la RAM sans quitter votre travail</translation>
    </message>
    <message>
        <source>Pressure nudge</source>
        <translation>Pression mémoire</translation>
    </message>
    <message>
        <source>Free RAM</source>
        <translation>Libérer la RAM</translation>
    </message>
    <message>
        <source>Pressure: free + compress. Deep purge prompts admin and flushes the unified buffer cache (heavier).</source>
        <translation>Pression&#x202f;: libère et compresse. La purge profonde demande les droits d’administrateur et vide tout le cache tampon (plus lourd).</translation>
    </message>
    <message>
        <source>Purging…</source>
        <translation>Purge en cours…</translation>
    </message>
    <message>
        <source>Deep purge (admin)</source>
        <translation>Purge profonde (admin)</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Stop purging</source>
        <translation>Arrêter la purge</translation>
    </message>
</context>
<context>
    <name>MemoryKindsBar</name>
    <message>
        <source>Own</source>
        <translation>Propre</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Partagée</translation>
    </message>
    <message>
        <source>In memory, kinds unknown</source>
        <translation>En mémoire, type inconnu</translation>
    </message>
    <message>
        <source>In swap</source>
        <translation>Dans le swap</translation>
    </message>
</context>
<context>
    <name>MemoryLineUp</name>
    <message>
        <source>Groups %1</source>
        <translation>Groupes %1</translation>
    </message>
    <message>
        <source>of these, caches of files −%1</source>
        <translation>dont caches de fichiers −%1</translation>
    </message>
    <message>
        <source>Other users %1</source>
        <translation>Autres utilisateurs %1</translation>
    </message>
    <message>
        <source>Kernel %1</source>
        <translation>Noyau %1</translation>
    </message>
    <message>
        <source>Shared memory and the rest %1</source>
        <translation>Mémoire partagée et reste %1</translation>
    </message>
    <message>
        <source>Used %1</source>
        <translation>Utilisé %1</translation>
    </message>
</context>
<context>
    <name>MemoryPage</name>
    <message>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>In use</source>
        <translation>Utilisée</translation>
    </message>
    <message>
        <source>Swap in use</source>
        <translation>Swap utilisé</translation>
    </message>
    <message>
        <source>Time that programs waited for memory</source>
        <translation>Temps d’attente de mémoire des programmes</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>Noyau</translation>
    </message>
    <message>
        <source>Compressed</source>
        <translation>Compressée</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programmes</translation>
    </message>
    <message>
        <source>Some programs</source>
        <translation>Certains programmes</translation>
    </message>
    <message>
        <source>All programs</source>
        <translation>Tous les programmes</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Groupes</translation>
    </message>
    <message>
        <source>File cache</source>
        <translation>Cache de fichiers</translation>
    </message>
</context>
<context>
    <name>MenuBarController</name>
    <message>
        <source>CPU %1% • RAM %2%</source>
        <translation>CPU %1&#x202f;% • RAM %2&#x202f;%</translation>
    </message>
    <message>
        <source>CPU %1%</source>
        <translation>CPU %1&#x202f;%</translation>
    </message>
    <message>
        <source>RAM %1%</source>
        <translation>RAM %1&#x202f;%</translation>
    </message>
</context>
<context>
    <name>MenuBarPanel</name>
    <message>
        <source>Top 5 by RAM</source>
        <translation>Top 5 par RAM</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Alertes</translation>
    </message>
    <message>
        <source>Toggle floating widget</source>
        <translation>Afficher ou masquer le widget flottant</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>RAM</source>
        <translation>RAM</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Disque</translation>
    </message>
    <message>
        <source>Therm</source>
        <translation>Temp.</translation>
    </message>
</context>
<context>
    <name>MetricTile</name>
    <message>
        <source>0–%1</source>
        <translation>0–%1</translation>
    </message>
</context>
<context>
    <name>Metrics</name>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Disque</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 libres</translation>
    </message>
    <message>
        <source>Thermal</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>Swap %1</source>
        <translation>Swap %1</translation>
    </message>
    <message>
        <source>No swap</source>
        <translation>Pas de swap</translation>
    </message>
    <message>
        <source>%1 • pressure %2</source>
        <comment>used memory; a share of time</comment>
        <translation>%1 • pression %2</translation>
    </message>
    <message>
        <source>Programs waited %1 of the last ten seconds for memory, all of them %2</source>
        <translation>Des programmes ont attendu de la mémoire pendant %1 des dix dernières secondes, tous à la fois %2</translation>
    </message>
    <message>
        <source>Programs waited %1 of the last ten seconds for disks, all of them %2</source>
        <translation>Des programmes ont attendu des disques pendant %1 des dix dernières secondes, tous à la fois %2</translation>
    </message>
</context>
<context>
    <name>NothingFound</name>
    <message>
        <source>Clear the search</source>
        <translation>Effacer la recherche</translation>
    </message>
    <message>
        <source>Show all groups</source>
        <translation>Afficher tous les groupes</translation>
    </message>
    <message>
        <source>Show all sizes</source>
        <translation>Afficher toutes les tailles</translation>
    </message>
    <message>
        <source>Clear all filters</source>
        <translation>Effacer tous les filtres</translation>
    </message>
    <message>
        <source>No processes match</source>
        <translation>Aucun processus ne correspond</translation>
    </message>
    <message numerus="yes">
        <source>Min RAM of %1 MB hides %n more.</source>
        <translation>
            <numerusform>La RAM minimale de %1 Mo en masque %n autre.</numerusform>
            <numerusform>La RAM minimale de %1 Mo en masque %n autres.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The group %1 hides %n more.</source>
        <translation>
            <numerusform>Le groupe %1 en masque %n autre.</numerusform>
            <numerusform>Le groupe %1 en masque %n autres.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The search hides %n more.</source>
        <translation>
            <numerusform>La recherche en masque %n autre.</numerusform>
            <numerusform>La recherche en masque %n autres.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The filters together hide %n process(es).</source>
        <translation>
            <numerusform>Les filtres ensemble masquent %n processus.</numerusform>
            <numerusform>Les filtres ensemble masquent %n processus.</numerusform>
        </translation>
    </message>
    <message>
        <source>Change the search, the group or Min RAM to see more.</source>
        <translation>Modifiez la recherche, le groupe ou la RAM minimale pour en voir plus.</translation>
    </message>
    <message>
        <source>No processes</source>
        <translation>Aucun processus</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>Dismiss</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>NotificationPlan</name>
    <message numerus="yes">
        <source>%n large session(s)</source>
        <translation>
            <numerusform>%n session volumineuse</numerusform>
            <numerusform>%n sessions volumineuses</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n idle agent(s)</source>
        <translation>
            <numerusform>%n agent inactif</numerusform>
            <numerusform>%n agents inactifs</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 de plus</translation>
    </message>
</context>
<context>
    <name>NukePreview</name>
    <message>
        <source>Quit “%1” and all %2 helpers?</source>
        <translation>Quitter «&#x202f;%1&#x202f;» et ses %2 processus auxiliaires&#x202f;?</translation>
    </message>
    <message>
        <source>Kill all %1 “%2” processes?</source>
        <translation>Tuer les %1 processus «&#x202f;%2&#x202f;»&#x202f;?</translation>
    </message>
    <message>
        <source>Tells %1 to quit cleanly — closes all %2 child processes in one sweep, no per-tab pop-ups. Frees ≈%3.</source>
        <translation>Demande à %1 de quitter proprement — ferme ses %2 processus enfants d’un coup, sans confirmation par onglet. Libère ≈%3.</translation>
    </message>
    <message>
        <source>Sends SIGTERM to all %1 PIDs. Use sparingly — unsaved work in those processes may be lost.</source>
        <translation>Envoie SIGTERM aux %1 PID. À utiliser avec prudence — le travail non enregistré de ces processus peut être perdu.</translation>
    </message>
    <message>
        <source>PIDs: %1</source>
        <translation>PID&#x202f;: %1</translation>
    </message>
    <message>
        <source>%1 of its files stay in the cache.</source>
        <translation>%1 de ses fichiers restent dans le cache.</translation>
    </message>
    <message>
        <source>What runs in its terminals ends too (≈%1): %2.</source>
        <translation>Ce qui tourne dans ses terminaux s’arrête aussi (≈%1)&#x202f;: %2.</translation>
    </message>
    <message>
        <source>Quit %1 (≈%2)</source>
        <translation>Quitter %1 (≈%2)</translation>
    </message>
    <message>
        <source>Force-quit %1 (no save prompt)</source>
        <translation>Forcer l’arrêt de %1 (sans demande d’enregistrement)</translation>
    </message>
    <message>
        <source>Kill %1 (≈%2)</source>
        <translation>Tuer %1 (≈%2)</translation>
    </message>
    <message>
        <source>Couldn&apos;t tell %1 to quit (it may not be scriptable). Try the force variant.</source>
        <translation>Impossible de demander à %1 de quitter (peut-être non scriptable). Essayez la variante forcée.</translation>
    </message>
    <message>
        <source>%1 quit cleanly — %2 helpers closed (≈%3 freed)</source>
        <translation>%1 a quitté proprement — %2 processus auxiliaires fermés (≈%3 libérés)</translation>
    </message>
    <message>
        <source>Killed %1/%2 “%3” processes (≈%4 targeted)</source>
        <translation>%1/%2 processus «&#x202f;%3&#x202f;» tués (≈%4 visés)</translation>
    </message>
</context>
<context>
    <name>NullPlatform</name>
    <message>
        <source>Nothing can be started at login here.</source>
        <translation>Rien ne peut être lancé à l’ouverture de session ici.</translation>
    </message>
</context>
<context>
    <name>OptimizeView</name>
    <message>
        <source>Optimize</source>
        <translation>Optimiser</translation>
    </message>
    <message>
        <source>Sent memory_pressure -l warn</source>
        <translation>memory_pressure -l warn envoyé</translation>
    </message>
    <message>
        <source>memory_pressure failed</source>
        <translation>Échec de memory_pressure</translation>
    </message>
    <message>
        <source>Inactive memory purged</source>
        <translation>Mémoire inactive purgée</translation>
    </message>
    <message>
        <source>Purge cancelled or failed</source>
        <translation>Purge annulée ou échouée</translation>
    </message>
    <message>
        <source>Killed %1 orphan MCP server(s)</source>
        <translation>Serveurs MCP orphelins tués&#x202f;: %1</translation>
    </message>
    <message>
        <source>No orphan MCPs to kill</source>
        <translation>Aucun MCP orphelin à tuer</translation>
    </message>
</context>
<context>
    <name>OutcomeList</name>
    <message>
        <source>Left alone: it belongs to something else</source>
        <translation>Laissé tel quel&#x202f;: appartient à autre chose</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Force-killed</source>
        <translation>Arrêt forcé</translation>
    </message>
    <message>
        <source>Ignored SIGTERM/KILL</source>
        <translation>SIGTERM/KILL ignoré</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permission refusée</translation>
    </message>
    <message>
        <source>Still running</source>
        <translation>Toujours en cours</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Processus</translation>
    </message>
</context>
<context>
    <name>OverviewView</name>
    <message>
        <source>Overview</source>
        <translation>Vue d’ensemble</translation>
    </message>
    <message>
        <source>Free RAM</source>
        <translation>Libérer la RAM</translation>
    </message>
    <message>
        <source>Floating Widget</source>
        <translation>Widget flottant</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>En direct</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Groupes</translation>
    </message>
</context>
<context>
    <name>PlaceFinder</name>
    <message>
        <source>%1 does not answer.</source>
        <translation>%1 ne répond pas.</translation>
    </message>
</context>
<context>
    <name>PresetTable</name>
    <message>
        <source>Quick Kill presets</source>
        <translation>Préréglages d’arrêt rapide</translation>
    </message>
    <message>
        <source>No presets. Add one, or reset to the defaults.</source>
        <translation>Aucun préréglage. Ajoutez-en un ou rétablissez ceux par défaut.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>PresetTableModel</name>
    <message>
        <source>%1m</source>
        <translation>%1&#xa0;min</translation>
    </message>
    <message>
        <source>%1MB</source>
        <translation>%1&#xa0;Mo</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Forcer</translation>
    </message>
    <message>
        <source>No force</source>
        <translation>Sans forcer</translation>
    </message>
</context>
<context>
    <name>PresetTile</name>
    <message>
        <source>%1, %2, %3 matching</source>
        <translation>%1, %2, correspondances&#x202f;: %3</translation>
    </message>
</context>
<context>
    <name>ProcessActions</name>
    <message>
        <source>No process of the session could be paused.</source>
        <translation>Aucun processus de la session n’a pu être mis en pause.</translation>
    </message>
    <message>
        <source>The session has ended meanwhile.</source>
        <translation>La session s’est terminée entre-temps.</translation>
    </message>
</context>
<context>
    <name>ProcessControls</name>
    <message>
        <source>Search name or path</source>
        <translation>Rechercher nom ou chemin</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>Trier</translation>
    </message>
    <message>
        <source>Min RAM %1 MB</source>
        <translation>RAM min. %1&#xa0;Mo</translation>
    </message>
    <message>
        <source>Group duplicates</source>
        <translation>Regrouper les doublons</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>Tree</source>
        <translation>Arbre</translation>
    </message>
    <message>
        <source>Words of a name, a path or arguments, a PID, or :8080 for who listens on that port</source>
        <translation>Mots d’un nom, d’un chemin ou d’arguments, un PID, ou&#xa0;:8080 pour qui écoute sur ce port</translation>
    </message>
    <message>
        <source>Children below their parents</source>
        <translation>Les enfants sous leurs parents</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>Shows the chosen process in a panel beside the table</source>
        <translation>Affiche le processus choisi à côté du tableau</translation>
    </message>
</context>
<context>
    <name>ProcessMenu</name>
    <message>
        <source>Quit %1…</source>
        <translation>Quitter %1…</translation>
    </message>
    <message>
        <source>Show in group</source>
        <translation>Afficher dans le groupe</translation>
    </message>
    <message>
        <source>As detected</source>
        <translation>Tel que détecté</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>Quit…</source>
        <translation>Quitter…</translation>
    </message>
    <message numerus="yes">
        <source>Quit %n row(s)…</source>
        <translation>
            <numerusform>Quitter %n ligne…</numerusform>
            <numerusform>Quitter %n lignes…</numerusform>
        </translation>
    </message>
    <message>
        <source>Force kill…</source>
        <translation>Forcer l’arrêt…</translation>
    </message>
    <message numerus="yes">
        <source>Force kill %n row(s)…</source>
        <translation>
            <numerusform>Forcer l’arrêt de %n ligne…</numerusform>
            <numerusform>Forcer l’arrêt de %n lignes…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProcessRow</name>
    <message>
        <source>Quit (SIGTERM)</source>
        <translation>Quitter (SIGTERM)</translation>
    </message>
    <message>
        <source>Force kill (SIGKILL)</source>
        <translation>Forcer l’arrêt (SIGKILL)</translation>
    </message>
    <message>
        <source>%1 %2, CPU %3, memory %4</source>
        <translation>%1 %2, CPU %3, mémoire %4</translation>
    </message>
</context>
<context>
    <name>ProcessRowDelegate</name>
    <message>
        <source>%1 Its menu can end it.</source>
        <translation>%1 Le menu de la ligne peut l’arrêter.</translation>
    </message>
</context>
<context>
    <name>ProcessTableModel</name>
    <message>
        <source>Force kill one</source>
        <translation>Forcer l’arrêt de ce processus</translation>
    </message>
    <message>
        <source>Quit all %1</source>
        <translation>Quitter les %1</translation>
    </message>
    <message>
        <source>Quit one</source>
        <translation>Quitter celui-ci</translation>
    </message>
    <message>
        <source>Nuke all %1 (with confirm)</source>
        <translation>Tuer les %1 (avec confirmation)</translation>
    </message>
    <message>
        <source>Nuke all %1 “%2” processes</source>
        <translation>Tuer les %1 processus «&#x202f;%2&#x202f;»</translation>
    </message>
    <message>
        <source>%1, row %2 of %3</source>
        <translation>%1, ligne %2 sur %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>level %1</source>
        <translation>niveau %1</translation>
    </message>
    <message>
        <source>folded</source>
        <translation>replié</translation>
    </message>
    <message>
        <source>open</source>
        <translation>déplié</translation>
    </message>
    <message>
        <source>ended</source>
        <translation>terminé</translation>
    </message>
    <message>
        <source>asked to end</source>
        <translation>arrêt demandé</translation>
    </message>
</context>
<context>
    <name>ProcessTableView</name>
    <message>
        <source>Processes</source>
        <translation>Processus</translation>
    </message>
    <message>
        <source>Hide %1</source>
        <translation>Masquer %1</translation>
    </message>
    <message>
        <source>Move column</source>
        <translation>Déplacer la colonne</translation>
    </message>
    <message>
        <source>Reset columns</source>
        <translation>Réinitialiser les colonnes</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>Vers la gauche</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>Vers la droite</translation>
    </message>
</context>
<context>
    <name>ProcessesView</name>
    <message numerus="yes">
        <source>%1 of %n process(es)</source>
        <translation>
            <numerusform>%1 sur %n processus</numerusform>
            <numerusform>%1 sur %n processus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 names of %n process(es)</source>
        <translation>
            <numerusform>%1 noms pour %n processus</numerusform>
            <numerusform>%1 noms pour %n processus</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. The order is held while a row is in use; F5 sorts anew.</source>
        <translation>%1. L’ordre est figé tant qu’une ligne est utilisée&#xa0;; F5 trie à nouveau.</translation>
    </message>
    <message>
        <source>%1, as they were when power became low.</source>
        <translation>%1, tels qu’avant l’économie d’énergie.</translation>
    </message>
</context>
<context>
    <name>ProjectLeftovers</name>
    <message>
        <source>cancelled</source>
        <translation>annulé</translation>
    </message>
    <message>
        <source>it did not finish</source>
        <translation>inachevé</translation>
    </message>
    <message>
        <source>a program that is unknown</source>
        <translation>un programme inconnu</translation>
    </message>
    <message>
        <source>something in it is new, or is on the list of what is never cleaned</source>
        <translation>quelque chose y est nouveau ou figure dans la liste de ce qui n’est jamais nettoyé</translation>
    </message>
    <message>
        <source>in use by %1</source>
        <translation>utilisé par %1</translation>
    </message>
</context>
<context>
    <name>ProjectLeftoversSheet</name>
    <message>
        <source>Add folder…</source>
        <translation>Ajouter un dossier…</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>Dossier personnel</translation>
    </message>
    <message>
        <source>Search projects</source>
        <translation>Rechercher des projets</translation>
    </message>
    <message>
        <source>Search again</source>
        <translation>Relancer la recherche</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Project leftovers</source>
        <translation>Restes de projets</translation>
    </message>
    <message>
        <source>Folders that builds and installations have left. The project&apos;s own tools make them again, which takes time and perhaps the network.</source>
        <translation>Dossiers laissés par les compilations et les installations. Les outils du projet les recréent, ce qui prend du temps et peut-être du réseau.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projet</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Dernier usage</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>Projets</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Rien trouvé</translation>
    </message>
    <message>
        <source>Looking for projects…</source>
        <translation>Recherche de projets…</translation>
    </message>
    <message>
        <source>Stop searching or removing</source>
        <translation>Arrêter la recherche ou la suppression</translation>
    </message>
    <message>
        <source>Look for projects in</source>
        <translation>Chercher des projets dans</translation>
    </message>
    <message>
        <source>Looks in the home folder, without hidden folders</source>
        <translation>Cherche dans le dossier personnel, sans les dossiers cachés</translation>
    </message>
    <message>
        <source>Looks in %1</source>
        <translation>Cherche dans %1</translation>
    </message>
    <message>
        <source>and %1 more: search to see them</source>
        <translation>et %1 de plus&#x202f;: recherchez pour les voir</translation>
    </message>
    <message>
        <source>the search (%1)</source>
        <translation>la recherche (%1)</translation>
    </message>
    <message>
        <source>Not finished: %1</source>
        <translation>Inachevé&#x202f;: %1</translation>
    </message>
    <message>
        <source>Remove…</source>
        <translation>Supprimer…</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n folder(s) (%1)…</source>
        <translation>
            <numerusform>Supprimer %n dossier (%1)…</numerusform>
            <numerusform>Supprimer %n dossiers (%1)…</numerusform>
        </translation>
    </message>
    <message>
        <source>What goes</source>
        <translation>Ce qui sera supprimé</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n folder(s)?</source>
        <translation>
            <numerusform>Supprimer %n dossier&#x202f;?</numerusform>
            <numerusform>Supprimer %n dossiers&#x202f;?</numerusform>
        </translation>
    </message>
    <message>
        <source>They are gone for good, with all that is in them. Sources stay.</source>
        <translation>Ils seront supprimés définitivement, avec tout leur contenu. Les sources restent.</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Supprimer %1</translation>
    </message>
    <message>
        <source>No project here has anything left by a build. “Add folder…” looks in other places too.</source>
        <translation>Aucun projet ici n’a de restes de compilation. «&#x202f;Ajouter un dossier…&#x202f;» cherche aussi ailleurs.</translation>
    </message>
    <message>
        <source>“Stop” ends the search and keeps what it has found.</source>
        <translation>«&#x202f;Arrêter&#x202f;» met fin à la recherche et garde ce qui est trouvé.</translation>
    </message>
    <message>
        <source>No projects match</source>
        <translation>Aucun projet ne correspond</translation>
    </message>
    <message>
        <source>The search looks in the path, the folders and the note of each project.</source>
        <translation>La recherche porte sur le chemin, les dossiers et la note de chaque projet.</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Effacer la recherche</translation>
    </message>
    <message>
        <source>The search did not finish</source>
        <translation>La recherche n’a pas abouti</translation>
    </message>
</context>
<context>
    <name>ProtectedProcesses</name>
    <message>
        <source>It is the first process of this system, which ends with it.</source>
        <translation>C’est le premier processus de ce système, qui s’arrête avec lui.</translation>
    </message>
    <message>
        <source>It draws the screen: every window closes, and what is not saved in them is lost.</source>
        <translation>Il dessine l’écran&#xa0;: toutes les fenêtres se ferment, et ce qui n’y est pas enregistré est perdu.</translation>
    </message>
    <message>
        <source>It holds your login: you are logged out, and what is not saved is lost.</source>
        <translation>Il tient votre session&#xa0;: vous êtes déconnecté, et ce qui n’est pas enregistré est perdu.</translation>
    </message>
    <message>
        <source>It runs the services of your login, such as sound and the message bus, and much of the desktop. They end with it.</source>
        <translation>Il fait tourner les services de votre session, comme le son et le bus de messages, et une grande partie du bureau. Ils s’arrêtent avec lui.</translation>
    </message>
    <message>
        <source>Tavrin was started from it and may end with it, as may everything else that was.</source>
        <translation>Tavrin a été lancé depuis lui et peut s’arrêter avec lui, comme tout ce qui l’a été aussi.</translation>
    </message>
</context>
<context>
    <name>QuickKillEditorSheet</name>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Process name pattern (substring match)</source>
        <translation>Motif du nom de processus (sous-chaîne)</translation>
    </message>
    <message>
        <source>Min idle minutes</source>
        <translation>Minutes d’inactivité min.</translation>
    </message>
    <message>
        <source>Min RAM %1 MB</source>
        <translation>RAM min. %1&#xa0;Mo</translation>
    </message>
    <message>
        <source>Use SIGKILL (force)</source>
        <translation>Utiliser SIGKILL (forcer)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>QuickKillPreset</name>
    <message>
        <source>pattern: %1</source>
        <translation>motif&#x202f;: %1</translation>
    </message>
    <message>
        <source>idle≥%1m</source>
        <translation>inactif ≥%1&#xa0;min</translation>
    </message>
    <message>
        <source>RAM≥%1MB</source>
        <translation>RAM ≥%1&#xa0;Mo</translation>
    </message>
    <message>
        <source>force</source>
        <translation>forcé</translation>
    </message>
    <message>
        <source>%1: nothing matched</source>
        <translation>%1&#x202f;: aucune correspondance</translation>
    </message>
    <message>
        <source>%1: killed %2/%3</source>
        <translation>%1&#x202f;: %2/%3 tués</translation>
    </message>
</context>
<context>
    <name>QuickKillsCard</name>
    <message>
        <source>Quick Kills</source>
        <translation>Arrêts rapides</translation>
    </message>
    <message>
        <source>Preset purges for common RAM hogs</source>
        <translation>Préréglages contre les gros consommateurs de RAM</translation>
    </message>
    <message>
        <source>No presets. The settings add some under Quick Kills, or bring the built-in ones back.</source>
        <translation>Aucun préréglage. Les réglages en ajoutent sous Arrêts rapides, ou rétablissent ceux d’origine.</translation>
    </message>
</context>
<context>
    <name>QuickKillsTab</name>
    <message>
        <source>Quick Kills</source>
        <translation>Arrêts rapides</translation>
    </message>
    <message>
        <source>Custom Quick Kill presets</source>
        <translation>Vos préréglages</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Reset to defaults</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>New preset</source>
        <translation>Nouveau préréglage</translation>
    </message>
    <message>
        <source>Edit preset</source>
        <translation>Modifier le préréglage</translation>
    </message>
</context>
<context>
    <name>Remains</name>
    <message>
        <source>Left by %1</source>
        <translation>Laissé par %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 runs %n time(s) under %2</source>
        <translation>
            <numerusform>%1 tourne %n fois sous %2</numerusform>
            <numerusform>%1 tourne %n fois sous %2</numerusform>
        </translation>
    </message>
    <message>
        <source>ended %1: %2</source>
        <translation>terminée %1&#x202f;: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n older one(s)</source>
        <translation>
            <numerusform>%n plus ancien</numerusform>
            <numerusform>%n plus anciens</numerusform>
        </translation>
    </message>
    <message>
        <source>End left-overs</source>
        <translation>Terminer les restes</translation>
    </message>
    <message>
        <source>End duplicates</source>
        <translation>Terminer les doublons</translation>
    </message>
</context>
<context>
    <name>RemainsHeader</name>
    <message>
        <source>Expanded</source>
        <translation>Développé</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Réduit</translation>
    </message>
</context>
<context>
    <name>ReturnTexts</name>
    <message>
        <source>≤ %1 will come back</source>
        <translation>≤ %1 seront récupérés</translation>
    </message>
    <message>
        <source>≈ %1 will come back</source>
        <translation>≈ %1 seront récupérés</translation>
    </message>
    <message>
        <source>Promised: %1 in memory, %2 in swap. Came back: %3 in memory, %4 in swap.</source>
        <translation>Prévu&#x202f;: %1 en mémoire, %2 en swap. Récupéré&#x202f;: %3 en mémoire, %4 en swap.</translation>
    </message>
</context>
<context>
    <name>RootView</name>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Sections</translation>
    </message>
    <message>
        <source>Hide sidebar</source>
        <translation>Masquer la barre latérale</translation>
    </message>
    <message>
        <source>Show sidebar</source>
        <translation>Afficher la barre latérale</translation>
    </message>
</context>
<context>
    <name>RowButton</name>
    <message>
        <source>%1: %2</source>
        <comment>an action, and what it is about</comment>
        <translation>%1&#x202f;: %2</translation>
    </message>
</context>
<context>
    <name>RulesEngine</name>
    <message>
        <source>Free RAM low</source>
        <translation>Peu de RAM libre</translation>
    </message>
    <message>
        <source>Only %1 GB free — consider quitting top hogs or cleaning caches.</source>
        <translation>Seulement %1&#xa0;Go libres — quittez les plus gros processus ou nettoyez des caches.</translation>
    </message>
    <message>
        <source>RAM getting tight</source>
        <translation>La RAM se fait rare</translation>
    </message>
    <message>
        <source>%1 GB free.</source>
        <translation>%1&#xa0;Go libres.</translation>
    </message>
    <message>
        <source>Programs wait for memory</source>
        <translation>Des programmes attendent de la mémoire</translation>
    </message>
    <message>
        <source>%1 of the last ten seconds. Free RAM, or quit what grows.</source>
        <translation>%1 des dix dernières secondes. Libérez de la RAM ou quittez ce qui grossit.</translation>
    </message>
    <message>
        <source>Memory full in about %1 min</source>
        <translation>Mémoire pleine dans environ %1&#xa0;min</translation>
    </message>
    <message>
        <source>Memory full in about %1 min — %2 grow %3/min</source>
        <translation>Mémoire pleine dans environ %1&#xa0;min — %2 grossissent de %3/min</translation>
    </message>
    <message>
        <source>Memory full in about %1 min — %2 grows %3/min</source>
        <translation>Mémoire pleine dans environ %1&#xa0;min — %2 grossit de %3/min</translation>
    </message>
    <message>
        <source>%1 are left, with swap.</source>
        <translation>Il reste %1, swap compris.</translation>
    </message>
    <message>
        <source>The kernel</source>
        <translation>Le noyau</translation>
    </message>
    <message>
        <source>%1 ended %2 at %3 because memory ran out</source>
        <translation>%1 a arrêté %2 à %3 faute de mémoire</translation>
    </message>
    <message>
        <source>%1 ended %2 (PID %3%4) at %5 because memory ran out</source>
        <translation>%1 a arrêté %2 (PID %3%4) à %5 faute de mémoire</translation>
    </message>
    <message>
        <source>Judged by what vanished then: the system&apos;s record is not readable.</source>
        <translation>Déduit de ce qui a disparu à ce moment&#x202f;: le journal du système n’est pas lisible.</translation>
    </message>
    <message>
        <source>CPU saturated</source>
        <translation>CPU saturé</translation>
    </message>
    <message>
        <source>%1 total — top: %2</source>
        <translation>%1 au total — en tête&#x202f;: %2</translation>
    </message>
    <message>
        <source>%1 is running hot (%2)</source>
        <translation>%1 chauffe (%2)</translation>
    </message>
    <message>
        <source>%1 is throttling — reduce parallel agentic work or quit Docker/ollama.</source>
        <translation>%1 ralentit le processeur — réduisez les agents en parallèle ou quittez Docker/ollama.</translation>
    </message>
    <message>
        <source>Heavy swap usage</source>
        <translation>Usage intensif du swap</translation>
    </message>
    <message>
        <source>%1 GB swapped — system will feel sluggish.</source>
        <translation>%1&#xa0;Go en swap — le système sera lent.</translation>
    </message>
    <message>
        <source>Idle agent — %1</source>
        <translation>Agent inactif — %1</translation>
    </message>
    <message>
        <source>Idle agent — %1 in %2</source>
        <translation>Agent inactif — %1 dans %2</translation>
    </message>
    <message>
        <source>Idle %1 min, %2 RAM. Quit?</source>
        <translation>Inactif depuis %1&#xa0;min, %2 de RAM. Quitter&#x202f;?</translation>
    </message>
    <message>
        <source>Idle %1 min, %2 RAM.</source>
        <translation>Inactif depuis %1&#xa0;min, %2 de RAM.</translation>
    </message>
    <message>
        <source>Browsers using %1</source>
        <translation>Les navigateurs utilisent %1</translation>
    </message>
    <message>
        <source>That&apos;s %1 of total RAM. Closing idle tabs frees the most memory fastest.</source>
        <translation>Soit %1 de la RAM totale. Fermer les onglets inactifs libère le plus de mémoire le plus vite.</translation>
    </message>
    <message>
        <source>Caches reclaimable: %1</source>
        <translation>Caches récupérables&#x202f;: %1</translation>
    </message>
    <message>
        <source>%1 holds %2</source>
        <translation>%1 occupe %2</translation>
    </message>
</context>
<context>
    <name>SamplingTab</name>
    <message>
        <source>Sampling</source>
        <translation>Mesure</translation>
    </message>
    <message>
        <source>Sampling cadence</source>
        <translation>Cadence de mesure</translation>
    </message>
    <message>
        <source>Poll interval</source>
        <translation>Intervalle de mesure</translation>
    </message>
    <message>
        <source>%1s</source>
        <translation>%1&#xa0;s</translation>
    </message>
    <message>
        <source>History retention</source>
        <translation>Conservation de l’historique</translation>
    </message>
    <message>
        <source>Keeps %1 samples for the Overview sparklines.</source>
        <translation>Conserve %1 mesures pour les courbes de la vue d’ensemble.</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Énergie</translation>
    </message>
    <message>
        <source>Pause sampling on Low Power Mode</source>
        <translation>Suspendre la mesure en mode économie d’énergie</translation>
    </message>
</context>
<context>
    <name>SamplingTexts</name>
    <message>
        <source>Processes are not read while power is low. “Pause sampling on Low Power Mode” in the settings, under Sampling, changes that.</source>
        <translation>Les processus ne sont pas lus en économie d’énergie. «&#x202f;Suspendre la mesure en mode économie d’énergie&#x202f;» dans les réglages, sous Mesure, le change.</translation>
    </message>
    <message>
        <source>The system lists no processes now. F5 reads them again.</source>
        <translation>Le système ne liste aucun processus en ce moment. F5 les relit.</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Clear search</source>
        <translation>Effacer la recherche</translation>
    </message>
</context>
<context>
    <name>ServerRow</name>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Orphan %1, PID %2, parent: %3, %4</source>
        <translation>Orphelin %1, PID %2, parent&#x202f;: %3, %4</translation>
    </message>
    <message>
        <source>Running %1, PID %2, parent: %3, %4</source>
        <translation>En cours %1, PID %2, parent&#x202f;: %3, %4</translation>
    </message>
    <message>
        <source>parent: %1</source>
        <translation>parent&#x202f;: %1</translation>
    </message>
    <message>
        <source>PID %1</source>
        <translation>PID %1</translation>
    </message>
</context>
<context>
    <name>ServerWatch</name>
    <message>
        <source>%1, no CPU for %2 h</source>
        <translation>%1, sans CPU depuis %2&#xa0;h</translation>
    </message>
    <message>
        <source>%1, no CPU for %2 min</source>
        <translation>%1, sans CPU depuis %2&#xa0;min</translation>
    </message>
    <message>
        <source>in use by %1</source>
        <translation>utilisé par %1</translation>
    </message>
    <message>
        <source>in use by %1 in %2</source>
        <translation>utilisé par %1 dans %2</translation>
    </message>
    <message>
        <source>runs in the container %1</source>
        <translation>tourne dans le conteneur %1</translation>
    </message>
    <message>
        <source>run by the service manager as %1</source>
        <translation>lancé par le gestionnaire de services comme %1</translation>
    </message>
    <message>
        <source>orphan: no agent or editor above it</source>
        <translation>orphelin&#x202f;: ni agent ni éditeur au-dessus</translation>
    </message>
    <message>
        <source>orphan: its host %1 ended at %2</source>
        <translation>orphelin&#x202f;: son hôte %1&#xa0;s’est arrêté à %2</translation>
    </message>
    <message>
        <source>orphan: no longer below its host %1</source>
        <translation>orphelin&#x202f;: n’est plus sous son hôte %1</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>%1 in %2</source>
        <translation>%1 dans %2</translation>
    </message>
</context>
<context>
    <name>SessionActions</name>
    <message>
        <source>End %1?</source>
        <translation>Terminer %1&#x202f;?</translation>
    </message>
    <message>
        <source>End session</source>
        <translation>Terminer la session</translation>
    </message>
    <message>
        <source>Could not pause %1.</source>
        <translation>Impossible de mettre %1 en pause.</translation>
    </message>
    <message>
        <source>Could not resume %1.</source>
        <translation>Impossible de reprendre %1.</translation>
    </message>
    <message>
        <source>Could not open %1.</source>
        <translation>Impossible d’ouvrir %1.</translation>
    </message>
</context>
<context>
    <name>SessionControls</name>
    <message>
        <source>Search sessions</source>
        <translation>Rechercher des sessions</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>Trier</translation>
    </message>
    <message>
        <source>Agent, project, name, state, process or port (:5173)</source>
        <translation>Agent, projet, nom, état, processus ou port (:5173)</translation>
    </message>
</context>
<context>
    <name>SessionDialogs</name>
    <message>
        <source>What ends</source>
        <translation>Ce qui se termine</translation>
    </message>
    <message>
        <source>The agent is asked first and has 5 s to save. What it started ends with it, and what stays is force-killed.</source>
        <translation>L’agent est sollicité d’abord et a 5 s pour enregistrer. Ce qu’il a lancé se termine avec lui&#x202f;; ce qui reste est arrêté de force.</translation>
    </message>
    <message>
        <source>The processes are asked to end, and what stays is force-killed.</source>
        <translation>Il est demandé aux processus de s’arrêter&#x202f;; ce qui reste est arrêté de force.</translation>
    </message>
    <message>
        <source>This takes the conversation up again: %1</source>
        <translation>Pour reprendre la conversation&#x202f;: %1</translation>
    </message>
    <message>
        <source>Stops the session and all that it started: they keep their memory and use no processor time until you resume them, or close this program.</source>
        <translation>Arrête la session et tout ce qu’elle a lancé&#x202f;: la mémoire reste occupée et le processeur n’est plus utilisé jusqu’à la reprise ou la fermeture de ce programme.</translation>
    </message>
    <message>
        <source>The terminal&apos;s shell may report the agent as stopped. After Resume, type fg there.</source>
        <translation>Le shell du terminal peut signaler l’agent comme arrêté. Après la reprise, tapez-y fg.</translation>
    </message>
    <message>
        <source>Pause %1?</source>
        <translation>Mettre %1 en pause&#x202f;?</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Mettre en pause</translation>
    </message>
</context>
<context>
    <name>SessionHeader</name>
    <message>
        <source>%1 in swap</source>
        <translation>%1 en swap</translation>
    </message>
    <message>
        <source>%1, %2, %3, %4 CPU, %5</source>
        <translation>%1, %2, %3, %4 de CPU, %5</translation>
    </message>
    <message>
        <source>last active %1</source>
        <translation>actif %1</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Développé</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Réduit</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
</context>
<context>
    <name>SessionProcessRow</name>
    <message>
        <source>listens on %1</source>
        <translation>écoute sur %1</translation>
    </message>
    <message>
        <source>running for %1</source>
        <translation>en cours depuis %1</translation>
    </message>
    <message>
        <source>%1, PID %2</source>
        <translation>%1, PID %2</translation>
    </message>
</context>
<context>
    <name>SessionResultView</name>
    <message>
        <source>%1: ended %2 of %3, freed ~%4</source>
        <translation>%1&#x202f;: %2 sur %3 terminés, ~%4 libérés</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Take the conversation up again: %1</source>
        <translation>Reprendre la conversation&#x202f;: %1</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy command</source>
        <translation>Copier la commande</translation>
    </message>
</context>
<context>
    <name>SessionRow</name>
    <message>
        <source>Pause</source>
        <translation>Mettre en pause</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Copy details</source>
        <translation>Copier les détails</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Terminer</translation>
    </message>
    <message>
        <source>End session</source>
        <translation>Terminer la session</translation>
    </message>
    <message>
        <source>Pause…</source>
        <translation>Mettre en pause…</translation>
    </message>
    <message>
        <source>End session…</source>
        <translation>Terminer la session…</translation>
    </message>
</context>
<context>
    <name>SessionTexts</name>
    <message>
        <source>agent</source>
        <translation>agent</translation>
    </message>
    <message>
        <source>Agent</source>
        <translation>Agent</translation>
    </message>
    <message numerus="yes">
        <source>%n agent(s)</source>
        <translation>
            <numerusform>%n agent</numerusform>
            <numerusform>%n agents</numerusform>
        </translation>
    </message>
    <message>
        <source>MCP server</source>
        <translation>serveur MCP</translation>
    </message>
    <message>
        <source>MCP servers</source>
        <translation>Serveurs MCP</translation>
    </message>
    <message numerus="yes">
        <source>%n server(s)</source>
        <translation>
            <numerusform>%n serveur</numerusform>
            <numerusform>%n serveurs</numerusform>
        </translation>
    </message>
    <message>
        <source>dev server</source>
        <translation>serveur de dév.</translation>
    </message>
    <message>
        <source>Dev servers</source>
        <translation>Serveurs de dév.</translation>
    </message>
    <message numerus="yes">
        <source>%n dev server(s)</source>
        <translation>
            <numerusform>%n serveur de dév.</numerusform>
            <numerusform>%n serveurs de dév.</numerusform>
        </translation>
    </message>
    <message>
        <source>browser</source>
        <translation>navigateur</translation>
    </message>
    <message>
        <source>Browsers</source>
        <translation>Navigateurs</translation>
    </message>
    <message numerus="yes">
        <source>%n browser(s)</source>
        <translation>
            <numerusform>%n navigateur</numerusform>
            <numerusform>%n navigateurs</numerusform>
        </translation>
    </message>
    <message>
        <source>command</source>
        <translation>commande</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Commandes</translation>
    </message>
    <message numerus="yes">
        <source>%n command(s)</source>
        <translation>
            <numerusform>%n commande</numerusform>
            <numerusform>%n commandes</numerusform>
        </translation>
    </message>
    <message>
        <source>Working</source>
        <translation>Travaille</translation>
    </message>
    <message>
        <source>Waiting for you</source>
        <translation>Vous attend</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Inactive</translation>
    </message>
    <message numerus="yes">
        <source>%n session(s)</source>
        <translation>
            <numerusform>%n session</numerusform>
            <numerusform>%n sessions</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n idle</source>
        <translation>
            <numerusform>%n inactive</numerusform>
            <numerusform>%n inactives</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n process(es)</source>
        <translation>
            <numerusform>%n processus</numerusform>
            <numerusform>%n processus</numerusform>
        </translation>
    </message>
    <message>
        <source>resident %1</source>
        <translation>résident %1</translation>
    </message>
</context>
<context>
    <name>SessionsView</name>
    <message>
        <source>No sessions</source>
        <translation>Aucune session</translation>
    </message>
    <message>
        <source>Coding agents that run in a terminal or an editor appear here, each with its MCP servers, dev servers, browsers and commands, and with what an ended one left running.</source>
        <translation>Les agents de programmation lancés dans un terminal ou un éditeur apparaissent ici, chacun avec ses serveurs MCP, serveurs de développement, navigateurs et commandes, et avec ce qu’un agent terminé a laissé tourner.</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Effacer la recherche</translation>
    </message>
    <message>
        <source>No sessions match</source>
        <translation>Aucune session ne correspond</translation>
    </message>
    <message>
        <source>Every word of the search has to be in the agent, the project, the name, the state, a process or a port of the session.</source>
        <translation>Chaque mot de la recherche doit figurer dans l’agent, le projet, le nom, l’état, un processus ou un port de la session.</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>Sessions</translation>
    </message>
    <message>
        <source>Left-overs</source>
        <translation>Restes</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Doublons</translation>
    </message>
</context>
<context>
    <name>SettingsScene</name>
    <message>
        <source>Tavrin Settings</source>
        <translation>Paramètres de Tavrin</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Onglets</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Onglet suivant</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Onglet précédent</translation>
    </message>
</context>
<context>
    <name>ShortcutsSheet</name>
    <message>
        <source>Keyboard</source>
        <translation>Clavier</translation>
    </message>
    <message>
        <source>Everywhere</source>
        <translation>Partout</translation>
    </message>
    <message>
        <source>Go to a section</source>
        <translation>Aller à une section</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>Fermer la fenêtre</translation>
    </message>
    <message>
        <source>Quit Tavrin</source>
        <translation>Quitter Tavrin</translation>
    </message>
    <message>
        <source>This sheet</source>
        <translation>Cette feuille</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Processus</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Jump to a name</source>
        <translation>Aller à un nom</translation>
    </message>
    <message>
        <source>its first letters</source>
        <translation>ses premières lettres</translation>
    </message>
    <message>
        <source>First and last row</source>
        <translation>Première et dernière ligne</translation>
    </message>
    <message>
        <source>Select more rows, or all</source>
        <translation>Sélectionner d’autres lignes, ou toutes</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Force kill</source>
        <translation>Arrêt forcé</translation>
    </message>
    <message>
        <source>Menu of the row</source>
        <translation>Menu de la ligne</translation>
    </message>
    <message>
        <source>Copy the selected rows</source>
        <translation>Copier les lignes sélectionnées</translation>
    </message>
    <message>
        <source>Fold or open a branch of the tree</source>
        <translation>Replier ou déplier une branche de l’arbre</translation>
    </message>
    <message>
        <source>Read and sort anew</source>
        <translation>Relire et trier à nouveau</translation>
    </message>
    <message>
        <source>Leave the row</source>
        <translation>Quitter la ligne</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Show or hide the sidebar</source>
        <translation>Afficher ou masquer la barre latérale</translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>In progress</source>
        <translation>En cours</translation>
    </message>
</context>
<context>
    <name>Stepper</name>
    <message>
        <source>Less: %1</source>
        <translation>Moins&#x202f;: %1</translation>
    </message>
    <message>
        <source>More: %1</source>
        <translation>Plus&#x202f;: %1</translation>
    </message>
</context>
<context>
    <name>SummedMemory</name>
    <message>
        <source>resident %1, in swap %2</source>
        <translation>résident %1, en swap %2</translation>
    </message>
    <message>
        <source>at least %1 (%2)</source>
        <translation>au moins %1 (%2)</translation>
    </message>
    <message>
        <source>about %1 (%2)</source>
        <translation>environ %1 (%2)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>TableView</name>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
</context>
<context>
    <name>TextListEditor</name>
    <message>
        <source>Remove %1</source>
        <translation>Supprimer %1</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Choisir un dossier…</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>Choisir un dossier</translation>
    </message>
</context>
<context>
    <name>ThermalPage</name>
    <message>
        <source>Thermal</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>No temperatures</source>
        <translation>Aucune température</translation>
    </message>
    <message>
        <source>This computer shows no sensors to programs, as most virtual machines. The tile shows the state that the kernel reports.</source>
        <translation>Cet ordinateur ne montre aucun capteur aux programmes, comme la plupart des machines virtuelles. La tuile montre l’état que le noyau signale.</translation>
    </message>
    <message>
        <source>Sensors</source>
        <translation>Capteurs</translation>
    </message>
    <message>
        <source>A sensor does not answer. It is asked again once it does, while this page is open.</source>
        <translation>Un capteur ne répond pas. Il sera de nouveau interrogé dès qu’il répondra, tant que cette page est ouverte.</translation>
    </message>
</context>
<context>
    <name>ThermalState</name>
    <message>
        <source>Cool</source>
        <translation>Froid</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Tiède</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Chaud</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Critique</translation>
    </message>
</context>
<context>
    <name>Translations</name>
    <message>
        <source>Claude Code plugin cache</source>
        <translation>Greffons Claude Code</translation>
    </message>
    <message>
        <source>npx cache</source>
        <translation>Cache npx</translation>
    </message>
    <message>
        <source>Playwright browsers</source>
        <translation>Navigateurs Playwright</translation>
    </message>
    <message>
        <source>User caches</source>
        <translation>Caches utilisateur</translation>
    </message>
    <message>
        <source>User logs</source>
        <translation>Journaux utilisateur</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Corbeille</translation>
    </message>
    <message>
        <source>Old /tmp (&gt;7d)</source>
        <translation>Ancien contenu de /tmp (&gt;7 j)</translation>
    </message>
    <message>
        <source>Old Downloads (&gt;30d)</source>
        <translation>Téléchargements (&gt;30&#xa0;j)</translation>
    </message>
    <message>
        <source>Old Desktop screenshots (&gt;30d)</source>
        <translation>Captures du bureau (&gt;30&#xa0;j)</translation>
    </message>
    <message>
        <source>Claude Code &amp; Agents</source>
        <translation>Claude Code &amp; agents</translation>
    </message>
    <message>
        <source>IDEs</source>
        <translation>IDE</translation>
    </message>
    <message>
        <source>Terminals</source>
        <translation>Terminaux</translation>
    </message>
    <message>
        <source>Browsers</source>
        <translation>Navigateurs</translation>
    </message>
    <message>
        <source>Docker &amp; Containers</source>
        <translation>Docker &amp; conteneurs</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Autres</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>Gradle logs (&gt;7d)</source>
        <translation>Journaux de Gradle (&gt;7 j)</translation>
    </message>
    <message>
        <source>Cargo sources and checkouts</source>
        <translation>Sources et dépôts de Cargo</translation>
    </message>
    <message>
        <source>Go build cache</source>
        <translation>Cache de compilation Go</translation>
    </message>
    <message>
        <source>Rust toolchains</source>
        <translation>Chaînes d’outils Rust</translation>
    </message>
    <message>
        <source>Conda packages</source>
        <translation>Paquets Conda</translation>
    </message>
    <message>
        <source>Editor caches</source>
        <translation>Caches des éditeurs</translation>
    </message>
    <message>
        <source>Local history of JetBrains editors</source>
        <translation>Historique local des éditeurs JetBrains</translation>
    </message>
    <message>
        <source>Agent logs (&gt;7d)</source>
        <translation>Journaux d’agents (&gt;7 j)</translation>
    </message>
    <message>
        <source>Agent shell snapshots (&gt;30d)</source>
        <translation>Instantanés de shell d’agents (&gt;30 j)</translation>
    </message>
    <message>
        <source>Texts pasted into Claude Code (&gt;30d)</source>
        <translation>Textes collés dans Claude Code (&gt;30 j)</translation>
    </message>
    <message>
        <source>Hugging Face models</source>
        <translation>Modèles Hugging Face</translation>
    </message>
    <message>
        <source>Ollama models</source>
        <translation>Modèles Ollama</translation>
    </message>
    <message>
        <source>LM Studio models</source>
        <translation>Modèles LM Studio</translation>
    </message>
    <message>
        <source>Flatpak application caches</source>
        <translation>Caches d’applications Flatpak</translation>
    </message>
    <message>
        <source>Snap application caches</source>
        <translation>Caches d’applications Snap</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Miniatures</translation>
    </message>
    <message>
        <source>Shader caches</source>
        <translation>Caches de shaders</translation>
    </message>
    <message>
        <source>Crash reports (&gt;7d)</source>
        <translation>Rapports de plantage (&gt;7 j)</translation>
    </message>
    <message>
        <source>Downloaded system packages</source>
        <translation>Paquets système téléchargés</translation>
    </message>
    <message>
        <source>System journal over 500 MB</source>
        <translation>Journal système au-delà de 500 Mo</translation>
    </message>
    <message>
        <source>CPU% • RAM%</source>
        <translation>CPU % • RAM %</translation>
    </message>
    <message>
        <source>CPU%</source>
        <translation>CPU %</translation>
    </message>
    <message>
        <source>RAM%</source>
        <translation>RAM %</translation>
    </message>
    <message>
        <source>Icon only</source>
        <translation>Icône seule</translation>
    </message>
    <message>
        <source>5 min</source>
        <translation>5 min</translation>
    </message>
    <message>
        <source>25 min</source>
        <translation>25 min</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 heure</translation>
    </message>
    <message>
        <source>Project leftovers</source>
        <translation>Restes de projets</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Vue d’ensemble</translation>
    </message>
    <message>
        <source>Optimize</source>
        <translation>Optimiser</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Processus</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <translation>Nettoyage</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>Sessions</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Last active</source>
        <translation>Dernière activité</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projet</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Sampling</source>
        <translation>Mesure</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Alertes</translation>
    </message>
    <message>
        <source>Quick Kills</source>
        <translation>Arrêts rapides</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
</context>
<context>
    <name>WidgetView</name>
    <message>
        <source>Open dashboard</source>
        <translation>Ouvrir la fenêtre principale</translation>
    </message>
    <message>
        <source>Hide widget</source>
        <translation>Masquer le widget</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>RAM</source>
        <translation>RAM</translation>
    </message>
    <message>
        <source>Disk free</source>
        <translation>Disque libre</translation>
    </message>
    <message>
        <source>Therm</source>
        <translation>Temp.</translation>
    </message>
    <message>
        <source>Groups (RAM)</source>
        <translation>Groupes (RAM)</translation>
    </message>
    <message numerus="yes">
        <source>+ %n more alert(s)</source>
        <translation>
            <numerusform>+ %n autre alerte</numerusform>
            <numerusform>+ %n autres alertes</numerusform>
        </translation>
    </message>
    <message>
        <source>%1G</source>
        <translation>%1G</translation>
    </message>
    <message>
        <source>%1M</source>
        <translation>%1M</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>Computer</source>
        <translation>L’ordinateur</translation>
    </message>
    <message>
        <source>task bar</source>
        <translation>la barre des tâches</translation>
    </message>
    <message>
        <source>Status area</source>
        <translation>Zone d’état</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
</context>
</TS>
