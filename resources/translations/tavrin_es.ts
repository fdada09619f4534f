<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>AlertCard</name>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>End session…</source>
        <translation>Terminar sesión…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>AlertNotifier</name>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Free RAM…</source>
        <translation>Liberar RAM…</translation>
    </message>
    <message>
        <source>End session…</source>
        <translation>Terminar sesión…</translation>
    </message>
    <message>
        <source>Quit %1</source>
        <translation>Cerrar %1</translation>
    </message>
    <message>
        <source>Cleaning is done</source>
        <translation>Limpieza terminada</translation>
    </message>
</context>
<context>
    <name>AlertStripView</name>
    <message>
        <source>System looks healthy.</source>
        <translation>El sistema está bien.</translation>
    </message>
</context>
<context>
    <name>AlertsTab</name>
    <message>
        <source>Alerts</source>
        <translation>Alertas</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>Low RAM warning</source>
        <translation>Aviso de poca RAM</translation>
    </message>
    <message>
        <source>Free RAM threshold</source>
        <translation>Umbral de RAM libre</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1&#xa0;GB</translation>
    </message>
    <message>
        <source>Notify when RAM is getting tight</source>
        <translation>Notificar cuando escasee la RAM</translation>
    </message>
    <message>
        <source>Memory pressure</source>
        <translation>Presión de memoria</translation>
    </message>
    <message>
        <source>Programs wait for memory</source>
        <translation>Hay programas que esperan memoria</translation>
    </message>
    <message>
        <source>Forecast</source>
        <translation>Previsión</translation>
    </message>
    <message>
        <source>Memory full within 30 minutes</source>
        <translation>Memoria llena en menos de 30 minutos</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Memoria agotada</translation>
    </message>
    <message>
        <source>What was ended because memory ran out</source>
        <translation>Qué se terminó por falta de memoria</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>CPU saturation</source>
        <translation>Saturación de CPU</translation>
    </message>
    <message>
        <source>CPU threshold</source>
        <translation>Umbral de CPU</translation>
    </message>
    <message>
        <source>Thermal</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Thermal pressure warning</source>
        <translation>Aviso de sobrecalentamiento</translation>
    </message>
    <message>
        <source>Idle agents</source>
        <translation>Agentes inactivos</translation>
    </message>
    <message>
        <source>Flag idle Claude / agentic processes</source>
        <translation>Señalar procesos de Claude y agentes inactivos</translation>
    </message>
    <message>
        <source>Min idle</source>
        <translation>Inactividad mín.</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1&#xa0;min</translation>
    </message>
    <message>
        <source>Min RAM</source>
        <translation>RAM mín.</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;MB</translation>
    </message>
    <message>
        <source>Browsers</source>
        <translation>Navegadores</translation>
    </message>
    <message>
        <source>Browser RAM dominance</source>
        <translation>RAM dominada por navegadores</translation>
    </message>
    <message>
        <source>Of total RAM</source>
        <translation>Del total de RAM</translation>
    </message>
    <message>
        <source>Caches</source>
        <translation>Cachés</translation>
    </message>
    <message>
        <source>Caches reclaimable</source>
        <translation>Cachés recuperables</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Umbral</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>Sesiones</translation>
    </message>
    <message>
        <source>Large session</source>
        <translation>Sesión grande</translation>
    </message>
    <message>
        <source>Session holds more than</source>
        <translation>La sesión ocupa más de</translation>
    </message>
    <message>
        <source>Notify</source>
        <translation>Notificar</translation>
    </message>
    <message>
        <source>Notify: %1</source>
        <translation>Notificar: %1</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notificaciones</translation>
    </message>
    <message>
        <source>Notify of heavy swap usage</source>
        <translation>Notificar uso intenso de swap</translation>
    </message>
    <message>
        <source>Notify of a finished long clean</source>
        <translation>Notificar el fin de una limpieza larga</translation>
    </message>
    <message>
        <source>Quiet time</source>
        <translation>Horas de silencio</translation>
    </message>
    <message>
        <source>Quiet from</source>
        <translation>Silencio desde</translation>
    </message>
    <message>
        <source>Quiet until</source>
        <translation>Silencio hasta</translation>
    </message>
    <message>
        <source>This desktop has no service that shows notifications.</source>
        <translation>Este escritorio no tiene ningún servicio que muestre notificaciones.</translation>
    </message>
    <message>
        <source>%1%</source>
        <comment>a share</comment>
        <translation>%1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>AppMenu</name>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ajustes…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>AutoOptimizeCard</name>
    <message>
        <source>Auto-Optimize</source>
        <translation>Optimización automática</translation>
    </message>
    <message>
        <source>Every 30 min: kill orphan MCPs + send memory pressure</source>
        <translation>Cada 30 min: matar MCP huérfanos y enviar presión de memoria</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Only safe actions run on the timer. Quitting visible apps stays manual on purpose.</source>
        <translation>Solo se automatizan acciones seguras. Cerrar aplicaciones visibles sigue siendo manual a propósito.</translation>
    </message>
    <message>
        <source>Running in background</source>
        <translation>Se ejecuta en segundo plano</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
</context>
<context>
    <name>CacheCard</name>
    <message>
        <source>Not scanned yet</source>
        <translation>Aún no analizado</translation>
    </message>
    <message>
        <source>Scanned %1</source>
        <translation>Analizado %1</translation>
    </message>
    <message>
        <source>Not in Clean All.</source>
        <translation>Excluido de «Limpiar todo».</translation>
    </message>
    <message>
        <source>not in Clean All</source>
        <translation>excluido de «Limpiar todo»</translation>
    </message>
</context>
<context>
    <name>CacheDetailDrawer</name>
    <message>
        <source>%1 reclaimable</source>
        <translation>%1 recuperables</translation>
    </message>
    <message>
        <source>Will run: %1</source>
        <translation>Ejecutará: %1</translation>
    </message>
    <message>
        <source>Breakdown</source>
        <translation>Desglose</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Mover a la papelera</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>No se encontró nada.</translation>
    </message>
    <message>
        <source>Rescan to see what it consists of.</source>
        <translation>Vuelva a analizar para ver de qué se compone.</translation>
    </message>
    <message>
        <source>Clean %1</source>
        <translation>Limpiar %1</translation>
    </message>
</context>
<context>
    <name>CacheScanner</name>
    <message>
        <source>%1 cannot be cleaned: %2.</source>
        <translation>No se puede limpiar %1: %2.</translation>
    </message>
    <message>
        <source>The tool calls %1 of it reclaimable.</source>
        <translation>Según la herramienta, %1 recuperables.</translation>
    </message>
</context>
<context>
    <name>CachesCard</name>
    <message>
        <source>Caches</source>
        <translation>Cachés</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Clean All</source>
        <translation>Limpiar todo</translation>
    </message>
    <message>
        <source>Stop cleaning</source>
        <translation>Detener la limpieza</translation>
    </message>
    <message>
        <source>Stopping %1 (%2 of %3)</source>
        <translation>Deteniendo %1 (%2 de %3)</translation>
    </message>
    <message>
        <source>Cleaning %1 (%2 of %3)</source>
        <translation>Limpiando %1 (%2 de %3)</translation>
    </message>
    <message>
        <source>%1 reclaimable across %2 targets</source>
        <translation>%1 recuperables, objetivos: %2</translation>
    </message>
    <message>
        <source>Measuring %1 (%2 of %3)</source>
        <translation>Midiendo %1 (%2 de %3)</translation>
    </message>
    <message>
        <source>Nothing is measured yet. “Rescan” in the section Cleanup does that.</source>
        <translation>Aún no se ha medido nada. Lo hace «Volver a analizar» en la sección Limpieza.</translation>
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
        <translation>libera ≤ %1</translation>
    </message>
    <message>
        <source>frees ≈ %1</source>
        <translation>libera ≈ %1</translation>
    </message>
    <message>
        <source>%1, %2, %3, idle %4, %5</source>
        <translation>%1, %2, %3, inactivo desde hace %4, %5</translation>
    </message>
</context>
<context>
    <name>Cleaner</name>
    <message>
        <source>stopped</source>
        <translation>detenido</translation>
    </message>
    <message>
        <source>there is no trash</source>
        <translation>no hay papelera</translation>
    </message>
    <message>
        <source>its name is no text</source>
        <translation>su nombre no es texto</translation>
    </message>
    <message>
        <source>%1 was not moved to the trash: %2</source>
        <translation>%1 no se movió a la papelera: %2</translation>
    </message>
    <message>
        <source>only old files can be moved</source>
        <translation>solo se pueden mover archivos antiguos</translation>
    </message>
    <message>
        <source>it could not be listed</source>
        <translation>no se pudo listar</translation>
    </message>
</context>
<context>
    <name>CleanupChoice</name>
    <message>
        <source>No volumes go</source>
        <translation>No se elimina ningún volumen</translation>
    </message>
    <message>
        <source>Volumes that go, with all that is in them: %1</source>
        <translation>Volúmenes que se eliminan con todo su contenido: %1</translation>
    </message>
</context>
<context>
    <name>CleanupConfirmation</name>
    <message>
        <source>Delete %1?</source>
        <translation>¿Eliminar %1?</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>Eliminar %1</translation>
    </message>
    <message>
        <source>Clean all reclaimable caches?</source>
        <translation>¿Limpiar todas las cachés recuperables?</translation>
    </message>
    <message>
        <source>Clean %1</source>
        <translation>Limpiar %1</translation>
    </message>
</context>
<context>
    <name>CleanupPreview</name>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nada</translation>
    </message>
    <message>
        <source>Tick all that is shown</source>
        <translation>Marcar todo lo mostrado</translation>
    </message>
    <message>
        <source>Leave out all that is shown</source>
        <translation>Excluir todo lo mostrado</translation>
    </message>
    <message>
        <source>Could not look into %1: %2</source>
        <translation>No se pudo examinar %1: %2</translation>
    </message>
    <message>
        <source>%1 will come back</source>
        <translation>Se recuperarán %1</translation>
    </message>
    <message numerus="yes">
        <source> • %n left out</source>
        <translation>
            <numerusform> • %n excluido</numerusform>
            <numerusform> • %n excluidos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CleanupPreviewModel</name>
    <message>
        <source>changed %1</source>
        <translation>modificado %1</translation>
    </message>
    <message>
        <source>in use</source>
        <translation>en uso</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Modificado</translation>
    </message>
</context>
<context>
    <name>CleanupPreviewView</name>
    <message>
        <source>What goes</source>
        <translation>Qué se elimina</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Include</source>
        <translation>Incluir</translation>
    </message>
    <message>
        <source>Reveal</source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>Could not open %1.</source>
        <translation>No se pudo abrir %1.</translation>
    </message>
    <message>
        <source>Nothing here has the text of the search. What is ticked stays so.</source>
        <translation>Nada aquí contiene el texto buscado. Lo marcado sigue marcado.</translation>
    </message>
</context>
<context>
    <name>CleanupTab</name>
    <message>
        <source>Cleanup</source>
        <translation>Limpieza</translation>
    </message>
    <message>
        <source>Questions</source>
        <translation>Preguntas</translation>
    </message>
    <message>
        <source>Ask before cleaning everything</source>
        <translation>Preguntar antes de limpiar todo</translation>
    </message>
    <message>
        <source>When off, “Clean All” in Optimize starts at once.</source>
        <translation>Si está desactivado, «Limpiar todo» en Optimizar empieza al momento.</translation>
    </message>
    <message>
        <source>Never clean</source>
        <translation>No limpiar nunca</translation>
    </message>
    <message>
        <source>Nothing is excluded.</source>
        <translation>Nada está excluido.</translation>
    </message>
    <message>
        <source>Path or pattern, such as *.gguf</source>
        <translation>Ruta o patrón, por ejemplo *.gguf</translation>
    </message>
    <message>
        <source>Neither counted nor removed. A path keeps all below it.</source>
        <translation>Ni se cuenta ni se elimina. Una ruta conserva todo lo que contiene.</translation>
    </message>
    <message>
        <source>Project folders</source>
        <translation>Carpetas de proyectos</translation>
    </message>
    <message>
        <source>Your home folder</source>
        <translation>Su carpeta personal</translation>
    </message>
    <message>
        <source>Where “Project leftovers” looks for projects. Hidden folders and other disks are left out.</source>
        <translation>Dónde busca proyectos «Restos de proyectos». Se omiten las carpetas ocultas y otros discos.</translation>
    </message>
</context>
<context>
    <name>CleanupTexts</name>
    <message>
        <source>“%1”</source>
        <comment>a name</comment>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 más</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 y %2</translation>
    </message>
    <message numerus="yes">
        <source>%n volume(s), %1</source>
        <translation>
            <numerusform>%n volumen, %1</numerusform>
            <numerusform>%n volúmenes, %1</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Gone for good: %1</source>
        <translation>Se elimina definitivamente: %1</translation>
    </message>
    <message>
        <source>Gone for good</source>
        <translation>Se elimina definitivamente</translation>
    </message>
    <message>
        <source>Runs %1</source>
        <translation>Ejecuta %1</translation>
    </message>
    <message>
        <source>These are files of yours, no caches. They will be gone for good.</source>
        <translation>Son archivos suyos, no cachés. Se eliminarán definitivamente.</translation>
    </message>
    <message>
        <source>These files of yours will be gone for good: %1.</source>
        <translation>Estos archivos suyos se eliminarán definitivamente: %1.</translation>
    </message>
    <message>
        <source>Gone for good, with all that is in them: %1.</source>
        <translation>Se eliminarán definitivamente, con todo su contenido: %1.</translation>
    </message>
    <message>
        <source>Stopped containers go too. Images and build caches are fetched or built again as needed.</source>
        <translation>También se eliminan los contenedores detenidos. Las imágenes y cachés de compilación se descargan o rehacen cuando haga falta.</translation>
    </message>
    <message>
        <source>Deleting cache files. Apps will rebuild caches as needed.</source>
        <translation>Se eliminan archivos de caché. Las aplicaciones reconstruirán sus cachés cuando haga falta.</translation>
    </message>
    <message>
        <source>What goes: %1.</source>
        <translation>Se elimina: %1.</translation>
    </message>
    <message>
        <source>No volumes go.</source>
        <translation>No se elimina ningún volumen.</translation>
    </message>
    <message>
        <source>Runs every cleanup with a size estimate above 0.</source>
        <translation>Ejecuta todas las limpiezas con un tamaño estimado mayor que 0.</translation>
    </message>
    <message>
        <source>Apps will rebuild caches as needed.</source>
        <translation>Las aplicaciones reconstruirán sus cachés cuando haga falta.</translation>
    </message>
    <message>
        <source>Not so with what is yours. It will be gone for good: %1.</source>
        <translation>No así lo que es suyo. Se eliminará definitivamente: %1.</translation>
    </message>
    <message>
        <source>Some of them overlap; the total counts what they share once.</source>
        <translation>Algunos se solapan; el total cuenta una sola vez lo que comparten.</translation>
    </message>
    <message>
        <source>Stopped: cleaned %1 of %2 targets, freed ~%3</source>
        <translation>Detenido: %1 de %2 objetivos, ~%3 liberados</translation>
    </message>
    <message>
        <source>Cleaned %1 targets, freed ~%2</source>
        <translation>Objetivos limpiados: %1, ~%2 liberados</translation>
    </message>
    <message>
        <source>%1 came back on the disk</source>
        <translation>Se recuperaron %1 en el disco</translation>
    </message>
    <message>
        <source>Not finished: %1</source>
        <translation>Sin terminar: %1</translation>
    </message>
    <message>
        <source>It is unknown which volumes go, with all that is in them.</source>
        <translation>Se desconoce qué volúmenes se irán, con todo lo que contienen.</translation>
    </message>
    <message>
        <source>unknown volumes</source>
        <translation>volúmenes desconocidos</translation>
    </message>
</context>
<context>
    <name>CleanupView</name>
    <message>
        <source>Show all</source>
        <translation>Mostrar todo</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>Volver a analizar</translation>
    </message>
    <message>
        <source>Clean All</source>
        <translation>Limpiar todo</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <translation>Limpieza</translation>
    </message>
    <message>
        <source>Also what this computer has nothing of</source>
        <translation>También lo que este equipo no tiene</translation>
    </message>
    <message>
        <source>Cleanup targets</source>
        <translation>Objetivos de limpieza</translation>
    </message>
    <message>
        <source>Stop cleaning</source>
        <translation>Detener la limpieza</translation>
    </message>
    <message>
        <source>Reclaimable: %1</source>
        <translation>Recuperable: %1</translation>
    </message>
    <message>
        <source>Build folders of your projects, which their tools make again.</source>
        <translation>Carpetas de compilación de sus proyectos, que sus herramientas vuelven a crear.</translation>
    </message>
    <message>
        <source>Stopping %1 (%2 of %3)</source>
        <translation>Deteniendo %1 (%2 de %3)</translation>
    </message>
    <message>
        <source>Cleaning %1 (%2 of %3)</source>
        <translation>Limpiando %1 (%2 de %3)</translation>
    </message>
    <message>
        <source>Measuring %1 (%2 of %3)</source>
        <translation>Midiendo %1 (%2 de %3)</translation>
    </message>
    <message>
        <source>nothing is measured yet: “Rescan” does that</source>
        <translation>aún no se ha medido nada: lo hace «Volver a analizar»</translation>
    </message>
    <message>
        <source>Stop measuring</source>
        <translation>Detener la medición</translation>
    </message>
</context>
<context>
    <name>Columns</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
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
        <translation>Propia</translation>
    </message>
    <message>
        <source>Memory that no other process shares</source>
        <translation>Memoria que ningún otro proceso comparte</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Swap</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>Hilos</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Inactivo</translation>
    </message>
    <message>
        <source>Procs</source>
        <translation>Proc.</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Acciones</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Detalle</translation>
    </message>
    <message>
        <source>Freed</source>
        <translation>Liberado</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Símbolo</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Patrón</translation>
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
        <translation>Forzar</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>Disk read</source>
        <translation>Lectura de disco</translation>
    </message>
    <message>
        <source>Read from disks a second, of your own processes</source>
        <translation>Leído de los discos por segundo, solo de sus procesos</translation>
    </message>
    <message>
        <source>Disk write</source>
        <translation>Escritura en disco</translation>
    </message>
    <message>
        <source>Written to disks a second, of your own processes</source>
        <translation>Escrito en los discos por segundo, solo de sus procesos</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Iniciado</translation>
    </message>
    <message>
        <source>Parent</source>
        <translation>Proceso padre</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sesión</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
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
        <translation>Todos los núcleos</translation>
    </message>
    <message>
        <source>Core %1</source>
        <translation>Núcleo %1</translation>
    </message>
</context>
<context>
    <name>DetailPage</name>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>since %1, while this page is open</source>
        <translation>desde %1, mientras esta página está abierta</translation>
    </message>
</context>
<context>
    <name>DiskPage</name>
    <message>
        <source>%1 free of %2</source>
        <translation>%1 libres de %2</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>%1 read</source>
        <translation>%1 leídos</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 escritos</translation>
    </message>
    <message>
        <source>No figures of reading and writing</source>
        <translation>Sin cifras de lectura ni de escritura</translation>
    </message>
    <message>
        <source>This computer shows programs no disk of its own, as many containers. What single processes read and write is in columns of the Processes section.</source>
        <translation>Este equipo no muestra a los programas ningún disco propio, como muchos contenedores. Lo que lee y escribe cada proceso está en columnas de la sección Procesos.</translation>
    </message>
    <message>
        <source>Being read…</source>
        <translation>Leyendo…</translation>
    </message>
    <message>
        <source>Read and written</source>
        <translation>Leído y escrito</translation>
    </message>
    <message>
        <source>No volume of a disk is mounted here. The tile shows the space of the root folder.</source>
        <translation>Aquí no hay montado ningún volumen de disco. El mosaico muestra el espacio de la carpeta raíz.</translation>
    </message>
    <message>
        <source>A disk does not answer. It is asked again once it does, while this page is open.</source>
        <translation>Un disco no responde. Se le volverá a preguntar en cuanto lo haga, mientras esta página esté abierta.</translation>
    </message>
</context>
<context>
    <name>DismissButton</name>
    <message>
        <source>Dismiss</source>
        <translation>Descartar</translation>
    </message>
</context>
<context>
    <name>EndDialog</name>
    <message>
        <source>Processes</source>
        <translation>Procesos</translation>
    </message>
    <message numerus="yes">
        <source>%1 %n process(es) run below it.</source>
        <translation>
            <numerusform>%1 Debajo se ejecuta %n proceso.</numerusform>
            <numerusform>%1 Debajo se ejecutan %n procesos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Force kill %1?</source>
        <translation>¿Forzar el fin de %1?</translation>
    </message>
    <message>
        <source>Quit %1?</source>
        <translation>¿Cerrar %1?</translation>
    </message>
    <message numerus="yes">
        <source>Force kill %n process(es)?</source>
        <translation>
            <numerusform>¿Forzar el fin de %n proceso?</numerusform>
            <numerusform>¿Forzar el fin de %n procesos?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Quit %n process(es)?</source>
        <translation>
            <numerusform>¿Terminar %n proceso?</numerusform>
            <numerusform>¿Terminar %n procesos?</numerusform>
        </translation>
    </message>
    <message>
        <source>They hold %1. They end at once, and what is not saved is lost.</source>
        <translation>Ocupan %1. Terminan de inmediato y se pierde lo que no se haya guardado.</translation>
    </message>
    <message>
        <source>They hold %1. They are asked to end, and may lose what is not saved.</source>
        <translation>Ocupan %1. Se les pide que terminen y pueden perder lo que no se haya guardado.</translation>
    </message>
    <message>
        <source>PID %1 holds %2. It ends at once, and what is not saved is lost.</source>
        <translation>El PID %1 ocupa %2. Termina de inmediato y se pierde lo que no se haya guardado.</translation>
    </message>
    <message>
        <source>PID %1 holds %2. It is asked to end, and may lose what is not saved.</source>
        <translation>El PID %1 ocupa %2. Se le pide que termine y puede perder lo que no esté guardado.</translation>
    </message>
    <message>
        <source>Force kill</source>
        <translation>Cierre forzado</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Force kill %1</source>
        <translation>Forzar el fin de %1</translation>
    </message>
    <message>
        <source>Quit %1</source>
        <translation>Cerrar %1</translation>
    </message>
</context>
<context>
    <name>Formatters</name>
    <message>
        <source>%1 KB</source>
        <translation>%1&#xa0;KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1&#xa0;GB</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1&#xa0;TB</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <translation>%1&#xa0;PB</translation>
    </message>
    <message>
        <source>%1 EB</source>
        <translation>%1&#xa0;EB</translation>
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
            <numerusform>%n byte</numerusform>
            <numerusform>%n bytes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n year(s) ago</source>
        <translation>
            <numerusform>hace %n año</numerusform>
            <numerusform>hace %n años</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n month(s) ago</source>
        <translation>
            <numerusform>hace %n mes</numerusform>
            <numerusform>hace %n meses</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n week(s) ago</source>
        <translation>
            <numerusform>hace %n semana</numerusform>
            <numerusform>hace %n semanas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n day(s) ago</source>
        <translation>
            <numerusform>hace %n día</numerusform>
            <numerusform>hace %n días</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s) ago</source>
        <translation>
            <numerusform>hace %n hora</numerusform>
            <numerusform>hace %n horas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s) ago</source>
        <translation>
            <numerusform>hace %n minuto</numerusform>
            <numerusform>hace %n minutos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n second(s) ago</source>
        <translation>
            <numerusform>hace %n segundo</numerusform>
            <numerusform>hace %n segundos</numerusform>
        </translation>
    </message>
    <message>
        <source>just now</source>
        <translation>ahora mismo</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
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
        <translation>• memory_pressure enviado</translation>
    </message>
    <message>
        <source>Freed ~%1</source>
        <translation>~%1 liberados</translation>
    </message>
    <message>
        <source>• stopped</source>
        <translation>• detenido</translation>
    </message>
</context>
<context>
    <name>FreeRAMSheet</name>
    <message>
        <source>Min idle: %1 min</source>
        <translation>Inactividad mín.: %1&#xa0;min</translation>
    </message>
    <message>
        <source>Min RAM: %1 MB</source>
        <translation>RAM mín.: %1&#xa0;MB</translation>
    </message>
    <message>
        <source>Other programs too</source>
        <translation>También otros programas</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Deseleccionar</translation>
    </message>
    <message>
        <source>Free RAM</source>
        <translation>Liberar RAM</translation>
    </message>
    <message>
        <source>Tick the processes you want to terminate. SIGTERM is sent first; anything still running after 2 s gets SIGKILL. %1 is then nudged with a memory-pressure hint to compress inactive pages.</source>
        <translation>Marque los procesos que quiere terminar. Primero se envía SIGTERM; lo que siga en ejecución tras 2 s recibe SIGKILL. Después, una presión de memoria hace que %1 comprima las páginas inactivas.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Lists programs of no known group under a gigabyte as well</source>
        <translation>Muestra también programas sin grupo conocido de menos de un gigabyte</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Procesos</translation>
    </message>
    <message>
        <source>No idle hogs above your thresholds</source>
        <translation>Ningún proceso voraz inactivo por encima de sus umbrales</translation>
    </message>
    <message>
        <source>Lower the Min idle slider to see lightly-used processes.</source>
        <translation>Reduzca la inactividad mínima para ver procesos poco usados.</translation>
    </message>
    <message>
        <source>%1 selected • %2 targeted</source>
        <translation>%1 seleccionados • %2 previstos</translation>
    </message>
    <message>
        <source>Killing…</source>
        <translation>Terminando…</translation>
    </message>
    <message>
        <source>Kill %1 and free RAM</source>
        <translation>Matar %1 y liberar RAM</translation>
    </message>
    <message>
        <source>Send memory pressure only</source>
        <translation>Enviar solo presión de memoria</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Kills nothing more; what still runs is left alone</source>
        <translation>No fuerza ningún cierre más; lo que aún se ejecuta se deja como está</translation>
    </message>
</context>
<context>
    <name>FreedesktopLoginItem</name>
    <message>
        <source>The program&apos;s own file cannot be found.</source>
        <translation>No se encuentra el archivo del propio programa.</translation>
    </message>
</context>
<context>
    <name>FreedesktopPlaces</name>
    <message>
        <source>%1 is left alone: a whole file system is mounted there.</source>
        <translation>%1 se deja como está: hay montado un sistema de archivos entero.</translation>
    </message>
    <message>
        <source>%1 is left alone: it is a link.</source>
        <translation>%1 se deja como está: es un enlace.</translation>
    </message>
    <message>
        <source>%1 is left alone: it holds more than that, in %2.</source>
        <translation>%1 se deja como está: contiene algo más, en %2.</translation>
    </message>
    <message>
        <source>%1 is left alone: all programs share it.</source>
        <translation>%1 se deja como está: todos los programas lo comparten.</translation>
    </message>
    <message>
        <source>%1 is left alone: the folder of caches must have nothing to do with %2.</source>
        <translation>%1 se deja como está: la carpeta de cachés no debe tener nada que ver con %2.</translation>
    </message>
</context>
<context>
    <name>FreedesktopTargets</name>
    <message>
        <source>Gradle fetches its packages and its own versions again.</source>
        <translation>Gradle vuelve a descargar sus paquetes y sus propias versiones.</translation>
    </message>
    <message>
        <source>Old logs of Gradle&apos;s background processes. Gradle writes new ones.</source>
        <translation>Registros antiguos de los procesos en segundo plano de Gradle. Gradle escribe otros nuevos.</translation>
    </message>
    <message>
        <source>Maven fetches packages again. Those that were only installed here must be built again.</source>
        <translation>Maven vuelve a descargar los paquetes. Los que solo se instalaron aquí deben compilarse de nuevo.</translation>
    </message>
    <message>
        <source>Both fetch their packages again.</source>
        <translation>Ambos vuelven a descargar sus paquetes.</translation>
    </message>
    <message>
        <source>Cargo unpacks sources again, and fetches repositories again.</source>
        <translation>Cargo vuelve a descomprimir las fuentes y a descargar los repositorios.</translation>
    </message>
    <message>
        <source>Go compiles packages again.</source>
        <translation>Go vuelve a compilar los paquetes.</translation>
    </message>
    <message>
        <source>Toolchains that are not the default. A project may still name one: rustup fetches it again, but not one of your own.</source>
        <translation>Cadenas de herramientas que no son la predeterminada. Un proyecto aún puede nombrar una: rustup la descarga de nuevo, pero no si es suya.</translation>
    </message>
    <message>
        <source>Yarn and Corepack fetch it again.</source>
        <translation>Yarn y Corepack lo descargan de nuevo.</translation>
    </message>
    <message>
        <source>Conda fetches packages again. Environments keep theirs, unless they are set to link to this folder.</source>
        <translation>Conda vuelve a descargar los paquetes. Los entornos conservan los suyos, salvo que enlacen a esta carpeta.</translation>
    </message>
    <message>
        <source>Poetry fetches its packages again. Environments stay.</source>
        <translation>Poetry vuelve a descargar sus paquetes. Los entornos se conservan.</translation>
    </message>
    <message>
        <source>pre-commit installs its hooks again.</source>
        <translation>pre-commit vuelve a instalar sus hooks.</translation>
    </message>
    <message>
        <source>Compiled objects. The next builds take longer and fill it again.</source>
        <translation>Objetos compilados. Las próximas compilaciones tardan más y la llenan de nuevo.</translation>
    </message>
    <message>
        <source>Files that Bazel has fetched. It fetches them again.</source>
        <translation>Archivos que Bazel ha descargado. Los descarga de nuevo.</translation>
    </message>
    <message>
        <source>Conan fetches or builds packages again. Recipes that are only here are gone.</source>
        <translation>Conan vuelve a descargar o compilar los paquetes. Las recetas que solo están aquí se pierden.</translation>
    </message>
    <message>
        <source>vcpkg builds its packages again.</source>
        <translation>vcpkg vuelve a compilar sus paquetes.</translation>
    </message>
    <message>
        <source>Editors make them again. Settings, open work and history stay.</source>
        <translation>Los editores las crean de nuevo. Ajustes, trabajo abierto e historial se conservan.</translation>
    </message>
    <message>
        <source>Earlier states of your files. Nothing brings them back.</source>
        <translation>Estados anteriores de sus archivos. Nada los recupera.</translation>
    </message>
    <message>
        <source>Logs of coding agents that no agent reads again. Conversations stay.</source>
        <translation>Registros de agentes de programación que ningún agente vuelve a leer. Las conversaciones se conservan.</translation>
    </message>
    <message>
        <source>Settings of shells for agents that ended long ago. An agent makes its own at its start.</source>
        <translation>Configuración de shell de agentes que terminaron hace tiempo. Un agente crea la suya al iniciarse.</translation>
    </message>
    <message>
        <source>Long texts that you pasted. Old prompts in the history refer to them.</source>
        <translation>Textos largos que pegó. Entradas antiguas del historial remiten a ellos.</translation>
    </message>
    <message>
        <source>Models and data sets. What is public can be fetched again.</source>
        <translation>Modelos y conjuntos de datos. Lo que es público se puede descargar de nuevo.</translation>
    </message>
    <message>
        <source>Parts of models, named after them. Those that you made here are gone for good.</source>
        <translation>Partes de modelos, con el nombre de estos. Los que creó aquí se pierden definitivamente.</translation>
    </message>
    <message>
        <source>Models. What is public can be fetched again.</source>
        <translation>Modelos. Lo que es público se puede descargar de nuevo.</translation>
    </message>
    <message>
        <source>Applications make their caches again.</source>
        <translation>Las aplicaciones crean sus cachés de nuevo.</translation>
    </message>
    <message>
        <source>Small pictures of your files. File managers make them again.</source>
        <translation>Imágenes pequeñas de sus archivos. Los gestores de archivos las crean de nuevo.</translation>
    </message>
    <message>
        <source>The graphics driver compiles shaders again. Games may stutter at first.</source>
        <translation>El controlador gráfico vuelve a compilar los sombreadores. Los juegos pueden ir a tirones al principio.</translation>
    </message>
    <message>
        <source>Reports of crashes that are a week old. They only help to find the fault.</source>
        <translation>Informes de fallos de hace una semana. Solo sirven para encontrar el error.</translation>
    </message>
    <message>
        <source>Podman fetches or builds images again. Stopped containers go.</source>
        <translation>Podman vuelve a descargar o compilar las imágenes. Los contenedores detenidos se eliminan.</translation>
    </message>
    <message>
        <source>They are installed already. The system asks for a password.</source>
        <translation>Ya están instalados. El sistema pide una contraseña.</translation>
    </message>
    <message>
        <source>Old messages of the system go, the newest stay. It asks for a password.</source>
        <translation>Los mensajes antiguos del sistema se eliminan y los más recientes se conservan. Se pide una contraseña.</translation>
    </message>
</context>
<context>
    <name>GeneralTab</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Iniciar al abrir sesión</translation>
    </message>
    <message>
        <source>Show floating widget on launch</source>
        <translation>Mostrar el widget flotante al iniciar</translation>
    </message>
    <message>
        <source>Show in %1</source>
        <translation>Mostrar en %1</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Visualización</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Texts, numbers and dates</source>
        <translation>Textos, números y fechas</translation>
    </message>
    <message>
        <source>Takes effect at the next start.</source>
        <translation>Se aplica en el próximo inicio.</translation>
    </message>
    <message>
        <source>Couldn&apos;t register: %1</source>
        <translation>No se pudo registrar: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t unregister: %1</source>
        <translation>No se pudo quitar el registro: %1</translation>
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
        <translation>La línea empieza con la próxima cifra.</translation>
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
        <translation>Desplegado</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Plegado</translation>
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
        <translation>… +%1 más en la pestaña Procesos</translation>
    </message>
</context>
<context>
    <name>HistoryTab</name>
    <message>
        <source>Action history</source>
        <translation>Historial de acciones</translation>
    </message>
    <message>
        <source>No actions logged yet.</source>
        <translation>Aún no hay acciones registradas.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Cierre</translation>
    </message>
    <message>
        <source>Force kill</source>
        <translation>Cierre forzado</translation>
    </message>
    <message>
        <source>Clean</source>
        <translation>Limpieza</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>Exportar CSV…</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>Vaciar registro</translation>
    </message>
    <message>
        <source>Export CSV</source>
        <translation>Exportar CSV</translation>
    </message>
    <message>
        <source>Comma-separated text (*.csv)</source>
        <translation>Texto separado por comas (*.csv)</translation>
    </message>
    <message>
        <source>Clear action history?</source>
        <translation>¿Borrar el historial de acciones?</translation>
    </message>
    <message>
        <source>This deletes ~/Library/Logs/Tavrin/actions.log.</source>
        <translation>Se elimina ~/Library/Logs/Tavrin/actions.log.</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Borrar todo</translation>
    </message>
    <message>
        <source>That file is the log itself.</source>
        <translation>Ese archivo es el propio registro.</translation>
    </message>
    <message>
        <source>The log was not exported. Choose another place.</source>
        <translation>El registro no se ha exportado. Elija otro lugar.</translation>
    </message>
    <message>
        <source>Show all kinds</source>
        <translation>Mostrar todos los tipos</translation>
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
        <translation>Error</translation>
    </message>
</context>
<context>
    <name>IncidentDialog</name>
    <message>
        <source>%1 more than at first</source>
        <translation>%1 más que al principio</translation>
    </message>
    <message>
        <source>%1 less than at first</source>
        <translation>%1 menos que al principio</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>From %1 to %2</source>
        <translation>De %1 a %2</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>Waited for memory</source>
        <translation>Espera de memoria</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Largest processes then</source>
        <translation>Procesos más grandes en ese momento</translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>Listens on %1</source>
        <translation>Escucha en %1</translation>
    </message>
    <message>
        <source>Program of the group %1</source>
        <translation>Programa del grupo %1</translation>
    </message>
    <message>
        <source>Program of no known group</source>
        <translation>Programa de ningún grupo conocido</translation>
    </message>
    <message>
        <source>%1, %2 ago</source>
        <comment>a point in time, and how long ago</comment>
        <translation>%1, hace %2</translation>
    </message>
    <message>
        <source>MCP server %1 for %2</source>
        <translation>Servidor MCP %1 para %2</translation>
    </message>
    <message>
        <source>MCP server %1, which nobody uses any more</source>
        <translation>Servidor MCP %1, que ya nadie usa</translation>
    </message>
    <message>
        <source>Coding agent %1</source>
        <translation>Agente de programación %1</translation>
    </message>
    <message>
        <source>MCP server for %1</source>
        <translation>Servidor MCP para %1</translation>
    </message>
    <message>
        <source>Dev server of %1</source>
        <translation>Servidor de desarrollo de %1</translation>
    </message>
    <message>
        <source>Dev server on %1 of %2</source>
        <translation>Servidor de desarrollo en %1 de %2</translation>
    </message>
    <message>
        <source>Browser of %1</source>
        <translation>Navegador de %1</translation>
    </message>
    <message>
        <source>Command of %1</source>
        <translation>Orden de %1</translation>
    </message>
    <message>
        <source>Renderer of %1: a page or an extension</source>
        <translation>Proceso de representación de %1: una página o una extensión</translation>
    </message>
    <message>
        <source>Graphics process of %1</source>
        <translation>Proceso de gráficos de %1</translation>
    </message>
    <message>
        <source>Service process of %1</source>
        <translation>Proceso de servicio de %1</translation>
    </message>
    <message>
        <source>Process that %1 starts others from</source>
        <translation>Proceso desde el que %1 inicia otros</translation>
    </message>
    <message>
        <source>Content process of %1: pages or extensions</source>
        <translation>Proceso de contenido de %1: páginas o extensiones</translation>
    </message>
</context>
<context>
    <name>InspectorPanel</name>
    <message>
        <source>Quit</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Force kill</source>
        <translation>Cierre forzado</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>Show files</source>
        <translation>Mostrar archivos</translation>
    </message>
    <message>
        <source>Show environment</source>
        <translation>Mostrar entorno</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Where it is from</source>
        <translation>Procedencia</translation>
    </message>
    <message>
        <source>PID</source>
        <translation>PID</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Iniciado</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>Hilos</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sesión</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Control group</source>
        <translation>Grupo de control</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy the command</source>
        <translation>Copiar la orden</translation>
    </message>
    <message>
        <source>Started from</source>
        <translation>Iniciado desde</translation>
    </message>
    <message>
        <source>Its parents are not listed.</source>
        <translation>Sus procesos padre no figuran en la lista.</translation>
    </message>
    <message>
        <source>Close the details</source>
        <translation>Cerrar los detalles</translation>
    </message>
    <message>
        <source>Choose a process in the table.</source>
        <translation>Elija un proceso de la tabla.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Environment</source>
        <translation>Entorno</translation>
    </message>
    <message>
        <source>It has ended.</source>
        <translation>Ha terminado.</translation>
    </message>
    <message>
        <source>Quit %1</source>
        <translation>Cerrar %1</translation>
    </message>
    <message>
        <source>Force kill %1</source>
        <translation>Forzar el fin de %1</translation>
    </message>
    <message numerus="yes">
        <source>%n open file(s)</source>
        <translation>
            <numerusform>%n archivo abierto</numerusform>
            <numerusform>%n archivos abiertos</numerusform>
        </translation>
    </message>
    <message>
        <source>listens on %1</source>
        <translation>escucha en %1</translation>
    </message>
    <message>
        <source>Unknown: the system tells it only of your own processes.</source>
        <translation>Desconocido: el sistema solo lo indica de sus propios procesos.</translation>
    </message>
    <message>
        <source>Being read…</source>
        <translation>Leyendo…</translation>
    </message>
    <message>
        <source>Open files</source>
        <translation>Archivos abiertos</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>Se listan los %1 primeros.</translation>
    </message>
    <message>
        <source>The system refuses it</source>
        <translation>El sistema lo deniega</translation>
    </message>
    <message>
        <source>hidden, as it may be a secret</source>
        <translation>oculto, porque puede ser un secreto</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Está vacío.</translation>
    </message>
    <message>
        <source>Unknown: it has ended.</source>
        <translation>Desconocido: ha terminado.</translation>
    </message>
</context>
<context>
    <name>LeaveOutOffer</name>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>You left this out twice. The Cleanup settings have the list.</source>
        <translation>Ha excluido esto dos veces. La lista está en los ajustes de limpieza.</translation>
    </message>
    <message>
        <source>Never clean this?</source>
        <translation>¿No limpiar esto nunca?</translation>
    </message>
    <message>
        <source>Never Clean</source>
        <translation>No limpiar nunca</translation>
    </message>
</context>
<context>
    <name>LeftoverTexts</name>
    <message>
        <source>unknown</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>in use by %1</source>
        <translation>en uso por %1</translation>
    </message>
    <message>
        <source>uncommitted changes</source>
        <translation>cambios sin confirmar</translation>
    </message>
    <message numerus="yes">
        <source>Stopped: removed %n folder(s), freed ~%1</source>
        <translation>
            <numerusform>Detenido: %n carpeta eliminada, ~%1 liberados</numerusform>
            <numerusform>Detenido: %n carpetas eliminadas, ~%1 liberados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Removed %n folder(s), freed ~%1</source>
        <translation>
            <numerusform>%n carpeta eliminada, ~%1 liberados</numerusform>
            <numerusform>%n carpetas eliminadas, ~%1 liberados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n project(s) found</source>
        <translation>
            <numerusform>%n proyecto encontrado</numerusform>
            <numerusform>%n proyectos encontrados</numerusform>
        </translation>
    </message>
    <message>
        <source>Looking in %1</source>
        <translation>Buscando en %1</translation>
    </message>
    <message>
        <source>Removing %1</source>
        <translation>Eliminando %1</translation>
    </message>
</context>
<context>
    <name>MCPCard</name>
    <message>
        <source>Claude Code &amp; MCP</source>
        <translation>Claude Code y MCP</translation>
    </message>
    <message>
        <source>Loaded servers + orphan detection</source>
        <translation>Servidores cargados y detección de huérfanos</translation>
    </message>
    <message>
        <source>Configured</source>
        <translation>Configurados</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En marcha</translation>
    </message>
    <message>
        <source>Orphans</source>
        <translation>Huérfanos</translation>
    </message>
    <message>
        <source>Orphan RAM</source>
        <translation>RAM huérfana</translation>
    </message>
    <message>
        <source>Kill orphans</source>
        <translation>Matar huérfanos</translation>
    </message>
    <message>
        <source>Running servers</source>
        <translation>Servidores en marcha</translation>
    </message>
    <message>
        <source>No ~/.claude/mcp.json found — nothing configured globally.</source>
        <translation>No se encontró ~/.claude/mcp.json: no hay nada configurado globalmente.</translation>
    </message>
    <message>
        <source>A configuration file is being read. Its servers are counted after that.</source>
        <translation>Se está leyendo un archivo de configuración. Sus servidores se cuentan después.</translation>
    </message>
</context>
<context>
    <name>MCPInspector</name>
    <message>
        <source>(%1 or gone)</source>
        <translation>(%1 o terminado)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Close Window</source>
        <translation>Cerrar ventana</translation>
    </message>
    <message>
        <source>Show or Hide Sidebar</source>
        <translation>Mostrar u ocultar la barra lateral</translation>
    </message>
</context>
<context>
    <name>MemoryCard</name>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>Free RAM without quitting your work</source>
        <translation>Liberar RAM sin cerrar su trabajo</translation>
    </message>
    <message>
        <source>Pressure nudge</source>
        <translation>Presión de memoria</translation>
    </message>
    <message>
        <source>Free RAM</source>
        <translation>Liberar RAM</translation>
    </message>
    <message>
        <source>Pressure: free + compress. Deep purge prompts admin and flushes the unified buffer cache (heavier).</source>
        <translation>Presión: libera y comprime. La purga profunda pide permisos de administrador y vacía toda la caché de búferes (más pesada).</translation>
    </message>
    <message>
        <source>Purging…</source>
        <translation>Purgando…</translation>
    </message>
    <message>
        <source>Deep purge (admin)</source>
        <translation>Purga profunda (admin)</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Stop purging</source>
        <translation>Detener la purga</translation>
    </message>
</context>
<context>
    <name>MemoryKindsBar</name>
    <message>
        <source>Own</source>
        <translation>Propia</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Compartida</translation>
    </message>
    <message>
        <source>In memory, kinds unknown</source>
        <translation>En memoria, tipo desconocido</translation>
    </message>
    <message>
        <source>In swap</source>
        <translation>En swap</translation>
    </message>
</context>
<context>
    <name>MemoryLineUp</name>
    <message>
        <source>Groups %1</source>
        <translation>Grupos %1</translation>
    </message>
    <message>
        <source>of these, caches of files −%1</source>
        <translation>de ello, cachés de archivos −%1</translation>
    </message>
    <message>
        <source>Other users %1</source>
        <translation>Otros usuarios %1</translation>
    </message>
    <message>
        <source>Kernel %1</source>
        <translation>Núcleo %1</translation>
    </message>
    <message>
        <source>Shared memory and the rest %1</source>
        <translation>Memoria compartida y resto %1</translation>
    </message>
    <message>
        <source>Used %1</source>
        <translation>En uso %1</translation>
    </message>
</context>
<context>
    <name>MemoryPage</name>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>In use</source>
        <translation>En uso</translation>
    </message>
    <message>
        <source>Swap in use</source>
        <translation>Swap en uso</translation>
    </message>
    <message>
        <source>Time that programs waited for memory</source>
        <translation>Tiempo que los programas esperaron memoria</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>Núcleo</translation>
    </message>
    <message>
        <source>Compressed</source>
        <translation>Comprimida</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programas</translation>
    </message>
    <message>
        <source>Some programs</source>
        <translation>Algunos programas</translation>
    </message>
    <message>
        <source>All programs</source>
        <translation>Todos los programas</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Grupos</translation>
    </message>
    <message>
        <source>File cache</source>
        <translation>Caché de archivos</translation>
    </message>
</context>
<context>
    <name>MenuBarController</name>
    <message>
        <source>CPU %1% • RAM %2%</source>
        <translation>CPU %1&#xa0;% • RAM %2&#xa0;%</translation>
    </message>
    <message>
        <source>CPU %1%</source>
        <translation>CPU %1&#xa0;%</translation>
    </message>
    <message>
        <source>RAM %1%</source>
        <translation>RAM %1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>MenuBarPanel</name>
    <message>
        <source>Top 5 by RAM</source>
        <translation>Los 5 con más RAM</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Alertas</translation>
    </message>
    <message>
        <source>Toggle floating widget</source>
        <translation>Mostrar u ocultar el widget flotante</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
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
        <translation>Disco</translation>
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
        <translation>Memoria</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 libres</translation>
    </message>
    <message>
        <source>Thermal</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Swap %1</source>
        <translation>Swap %1</translation>
    </message>
    <message>
        <source>No swap</source>
        <translation>Sin swap</translation>
    </message>
    <message>
        <source>%1 • pressure %2</source>
        <comment>used memory; a share of time</comment>
        <translation>%1 • presión %2</translation>
    </message>
    <message>
        <source>Programs waited %1 of the last ten seconds for memory, all of them %2</source>
        <translation>Hubo programas esperando memoria el %1 de los últimos diez segundos, todos a la vez el %2</translation>
    </message>
    <message>
        <source>Programs waited %1 of the last ten seconds for disks, all of them %2</source>
        <translation>Hubo programas esperando discos el %1 de los últimos diez segundos, todos a la vez el %2</translation>
    </message>
</context>
<context>
    <name>NothingFound</name>
    <message>
        <source>Clear the search</source>
        <translation>Borrar la búsqueda</translation>
    </message>
    <message>
        <source>Show all groups</source>
        <translation>Mostrar todos los grupos</translation>
    </message>
    <message>
        <source>Show all sizes</source>
        <translation>Mostrar todos los tamaños</translation>
    </message>
    <message>
        <source>Clear all filters</source>
        <translation>Quitar todos los filtros</translation>
    </message>
    <message>
        <source>No processes match</source>
        <translation>No coincide ningún proceso</translation>
    </message>
    <message numerus="yes">
        <source>Min RAM of %1 MB hides %n more.</source>
        <translation>
            <numerusform>La RAM mínima de %1 MB oculta %n más.</numerusform>
            <numerusform>La RAM mínima de %1 MB oculta %n más.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The group %1 hides %n more.</source>
        <translation>
            <numerusform>El grupo %1 oculta %n más.</numerusform>
            <numerusform>El grupo %1 oculta %n más.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The search hides %n more.</source>
        <translation>
            <numerusform>La búsqueda oculta %n más.</numerusform>
            <numerusform>La búsqueda oculta %n más.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The filters together hide %n process(es).</source>
        <translation>
            <numerusform>Los filtros juntos ocultan %n proceso.</numerusform>
            <numerusform>Los filtros juntos ocultan %n procesos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Change the search, the group or Min RAM to see more.</source>
        <translation>Cambie la búsqueda, el grupo o la RAM mínima para ver más.</translation>
    </message>
    <message>
        <source>No processes</source>
        <translation>Ningún proceso</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>Dismiss</source>
        <translation>Descartar</translation>
    </message>
</context>
<context>
    <name>NotificationPlan</name>
    <message numerus="yes">
        <source>%n large session(s)</source>
        <translation>
            <numerusform>%n sesión grande</numerusform>
            <numerusform>%n sesiones grandes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n idle agent(s)</source>
        <translation>
            <numerusform>%n agente inactivo</numerusform>
            <numerusform>%n agentes inactivos</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 más</translation>
    </message>
</context>
<context>
    <name>NukePreview</name>
    <message>
        <source>Quit “%1” and all %2 helpers?</source>
        <translation>¿Cerrar «%1» y sus %2 procesos auxiliares?</translation>
    </message>
    <message>
        <source>Kill all %1 “%2” processes?</source>
        <translation>¿Matar los %1 procesos «%2»?</translation>
    </message>
    <message>
        <source>Tells %1 to quit cleanly — closes all %2 child processes in one sweep, no per-tab pop-ups. Frees ≈%3.</source>
        <translation>Pide a %1 que se cierre correctamente: cierra sus %2 procesos hijos de una vez, sin avisos por pestaña. Libera ≈%3.</translation>
    </message>
    <message>
        <source>Sends SIGTERM to all %1 PIDs. Use sparingly — unsaved work in those processes may be lost.</source>
        <translation>Envía SIGTERM a los %1 PID. Úselo con cuidado: el trabajo sin guardar de esos procesos puede perderse.</translation>
    </message>
    <message>
        <source>PIDs: %1</source>
        <translation>PID: %1</translation>
    </message>
    <message>
        <source>%1 of its files stay in the cache.</source>
        <translation>%1 de sus archivos quedan en la caché.</translation>
    </message>
    <message>
        <source>What runs in its terminals ends too (≈%1): %2.</source>
        <translation>También termina lo que se ejecuta en sus terminales (≈%1): %2.</translation>
    </message>
    <message>
        <source>Quit %1 (≈%2)</source>
        <translation>Cerrar %1 (≈%2)</translation>
    </message>
    <message>
        <source>Force-quit %1 (no save prompt)</source>
        <translation>Forzar el cierre de %1 (sin preguntar por guardar)</translation>
    </message>
    <message>
        <source>Kill %1 (≈%2)</source>
        <translation>Matar %1 (≈%2)</translation>
    </message>
    <message>
        <source>Couldn&apos;t tell %1 to quit (it may not be scriptable). Try the force variant.</source>
        <translation>No se pudo pedir a %1 que se cierre (quizá no admite scripts). Pruebe la variante forzada.</translation>
    </message>
    <message>
        <source>%1 quit cleanly — %2 helpers closed (≈%3 freed)</source>
        <translation>%1 se cerró correctamente: %2 procesos auxiliares cerrados (≈%3 liberados)</translation>
    </message>
    <message>
        <source>Killed %1/%2 “%3” processes (≈%4 targeted)</source>
        <translation>%1/%2 procesos «%3» terminados (≈%4 previstos)</translation>
    </message>
</context>
<context>
    <name>NullPlatform</name>
    <message>
        <source>Nothing can be started at login here.</source>
        <translation>Aquí no se puede iniciar nada al abrir sesión.</translation>
    </message>
</context>
<context>
    <name>OptimizeView</name>
    <message>
        <source>Optimize</source>
        <translation>Optimizar</translation>
    </message>
    <message>
        <source>Sent memory_pressure -l warn</source>
        <translation>Se envió memory_pressure -l warn</translation>
    </message>
    <message>
        <source>memory_pressure failed</source>
        <translation>memory_pressure falló</translation>
    </message>
    <message>
        <source>Inactive memory purged</source>
        <translation>Memoria inactiva purgada</translation>
    </message>
    <message>
        <source>Purge cancelled or failed</source>
        <translation>Purga cancelada o fallida</translation>
    </message>
    <message>
        <source>Killed %1 orphan MCP server(s)</source>
        <translation>Servidores MCP huérfanos terminados: %1</translation>
    </message>
    <message>
        <source>No orphan MCPs to kill</source>
        <translation>No hay MCP huérfanos que matar</translation>
    </message>
</context>
<context>
    <name>OutcomeList</name>
    <message>
        <source>Left alone: it belongs to something else</source>
        <translation>Se dejó como está: pertenece a otra cosa</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Terminado</translation>
    </message>
    <message>
        <source>Force-killed</source>
        <translation>Cierre forzado</translation>
    </message>
    <message>
        <source>Ignored SIGTERM/KILL</source>
        <translation>Ignoró SIGTERM/KILL</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permiso denegado</translation>
    </message>
    <message>
        <source>Still running</source>
        <translation>Sigue en ejecución</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Procesos</translation>
    </message>
</context>
<context>
    <name>OverviewView</name>
    <message>
        <source>Overview</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Free RAM</source>
        <translation>Liberar RAM</translation>
    </message>
    <message>
        <source>Floating Widget</source>
        <translation>Widget flotante</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>En vivo</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Grupos</translation>
    </message>
</context>
<context>
    <name>PlaceFinder</name>
    <message>
        <source>%1 does not answer.</source>
        <translation>%1 no responde.</translation>
    </message>
</context>
<context>
    <name>PresetTable</name>
    <message>
        <source>Quick Kill presets</source>
        <translation>Preajustes de cierre rápido</translation>
    </message>
    <message>
        <source>No presets. Add one, or reset to the defaults.</source>
        <translation>No hay preajustes. Añada uno o restablezca los predeterminados.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
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
        <translation>%1&#xa0;MB</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Forzar</translation>
    </message>
    <message>
        <source>No force</source>
        <translation>Sin forzar</translation>
    </message>
</context>
<context>
    <name>PresetTile</name>
    <message>
        <source>%1, %2, %3 matching</source>
        <translation>%1, %2, coincidencias: %3</translation>
    </message>
</context>
<context>
    <name>ProcessActions</name>
    <message>
        <source>No process of the session could be paused.</source>
        <translation>No se pudo pausar ningún proceso de la sesión.</translation>
    </message>
    <message>
        <source>The session has ended meanwhile.</source>
        <translation>La sesión ha terminado entretanto.</translation>
    </message>
</context>
<context>
    <name>ProcessControls</name>
    <message>
        <source>Search name or path</source>
        <translation>Buscar nombre o ruta</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>Ordenar</translation>
    </message>
    <message>
        <source>Min RAM %1 MB</source>
        <translation>RAM mín. %1&#xa0;MB</translation>
    </message>
    <message>
        <source>Group duplicates</source>
        <translation>Agrupar duplicados</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>Tree</source>
        <translation>Árbol</translation>
    </message>
    <message>
        <source>Words of a name, a path or arguments, a PID, or :8080 for who listens on that port</source>
        <translation>Palabras de un nombre, una ruta o argumentos, un PID, o :8080 para quien escucha en ese puerto</translation>
    </message>
    <message>
        <source>Children below their parents</source>
        <translation>Los hijos bajo sus padres</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Shows the chosen process in a panel beside the table</source>
        <translation>Muestra el proceso elegido junto a la tabla</translation>
    </message>
</context>
<context>
    <name>ProcessMenu</name>
    <message>
        <source>Quit %1…</source>
        <translation>Cerrar %1…</translation>
    </message>
    <message>
        <source>Show in group</source>
        <translation>Mostrar en el grupo</translation>
    </message>
    <message>
        <source>As detected</source>
        <translation>Según detección</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Quit…</source>
        <translation>Terminar…</translation>
    </message>
    <message numerus="yes">
        <source>Quit %n row(s)…</source>
        <translation>
            <numerusform>Terminar %n fila…</numerusform>
            <numerusform>Terminar %n filas…</numerusform>
        </translation>
    </message>
    <message>
        <source>Force kill…</source>
        <translation>Forzar el fin…</translation>
    </message>
    <message numerus="yes">
        <source>Force kill %n row(s)…</source>
        <translation>
            <numerusform>Forzar el fin de %n fila…</numerusform>
            <numerusform>Forzar el fin de %n filas…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProcessRow</name>
    <message>
        <source>Quit (SIGTERM)</source>
        <translation>Cerrar (SIGTERM)</translation>
    </message>
    <message>
        <source>Force kill (SIGKILL)</source>
        <translation>Forzar cierre (SIGKILL)</translation>
    </message>
    <message>
        <source>%1 %2, CPU %3, memory %4</source>
        <translation>%1 %2, CPU %3, memoria %4</translation>
    </message>
</context>
<context>
    <name>ProcessRowDelegate</name>
    <message>
        <source>%1 Its menu can end it.</source>
        <translation>%1 El menú de la fila puede terminarlo.</translation>
    </message>
</context>
<context>
    <name>ProcessTableModel</name>
    <message>
        <source>Force kill one</source>
        <translation>Forzar el cierre de este</translation>
    </message>
    <message>
        <source>Quit all %1</source>
        <translation>Cerrar los %1</translation>
    </message>
    <message>
        <source>Quit one</source>
        <translation>Cerrar este</translation>
    </message>
    <message>
        <source>Nuke all %1 (with confirm)</source>
        <translation>Matar los %1 (con confirmación)</translation>
    </message>
    <message>
        <source>Nuke all %1 “%2” processes</source>
        <translation>Matar los %1 procesos «%2»</translation>
    </message>
    <message>
        <source>%1, row %2 of %3</source>
        <translation>%1, fila %2 de %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>level %1</source>
        <translation>nivel %1</translation>
    </message>
    <message>
        <source>folded</source>
        <translation>plegado</translation>
    </message>
    <message>
        <source>open</source>
        <translation>desplegado</translation>
    </message>
    <message>
        <source>ended</source>
        <translation>terminado</translation>
    </message>
    <message>
        <source>asked to end</source>
        <translation>se le pidió terminar</translation>
    </message>
</context>
<context>
    <name>ProcessTableView</name>
    <message>
        <source>Processes</source>
        <translation>Procesos</translation>
    </message>
    <message>
        <source>Hide %1</source>
        <translation>Ocultar %1</translation>
    </message>
    <message>
        <source>Move column</source>
        <translation>Mover columna</translation>
    </message>
    <message>
        <source>Reset columns</source>
        <translation>Restablecer columnas</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>A la izquierda</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>A la derecha</translation>
    </message>
</context>
<context>
    <name>ProcessesView</name>
    <message numerus="yes">
        <source>%1 of %n process(es)</source>
        <translation>
            <numerusform>%1 de %n proceso</numerusform>
            <numerusform>%1 de %n procesos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 names of %n process(es)</source>
        <translation>
            <numerusform>%1 nombres de %n proceso</numerusform>
            <numerusform>%1 nombres de %n procesos</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. The order is held while a row is in use; F5 sorts anew.</source>
        <translation>%1. El orden se mantiene mientras se usa una fila; F5 vuelve a ordenar.</translation>
    </message>
    <message>
        <source>%1, as they were when power became low.</source>
        <translation>%1, como estaban antes del ahorro de energía.</translation>
    </message>
</context>
<context>
    <name>ProjectLeftovers</name>
    <message>
        <source>cancelled</source>
        <translation>cancelado</translation>
    </message>
    <message>
        <source>it did not finish</source>
        <translation>no terminó</translation>
    </message>
    <message>
        <source>a program that is unknown</source>
        <translation>un programa desconocido</translation>
    </message>
    <message>
        <source>something in it is new, or is on the list of what is never cleaned</source>
        <translation>algo en ella es nuevo o está en la lista de lo que nunca se limpia</translation>
    </message>
    <message>
        <source>in use by %1</source>
        <translation>en uso por %1</translation>
    </message>
</context>
<context>
    <name>ProjectLeftoversSheet</name>
    <message>
        <source>Add folder…</source>
        <translation>Añadir carpeta…</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>Carpeta personal</translation>
    </message>
    <message>
        <source>Search projects</source>
        <translation>Buscar proyectos</translation>
    </message>
    <message>
        <source>Search again</source>
        <translation>Buscar de nuevo</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Project leftovers</source>
        <translation>Restos de proyectos</translation>
    </message>
    <message>
        <source>Folders that builds and installations have left. The project&apos;s own tools make them again, which takes time and perhaps the network.</source>
        <translation>Carpetas que han dejado compilaciones e instalaciones. Las herramientas del proyecto las vuelven a crear, lo que requiere tiempo y quizá la red.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Proyecto</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Último uso</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>Proyectos</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>No se encontró nada</translation>
    </message>
    <message>
        <source>Looking for projects…</source>
        <translation>Buscando proyectos…</translation>
    </message>
    <message>
        <source>Stop searching or removing</source>
        <translation>Detener la búsqueda o la eliminación</translation>
    </message>
    <message>
        <source>Look for projects in</source>
        <translation>Buscar proyectos en</translation>
    </message>
    <message>
        <source>Looks in the home folder, without hidden folders</source>
        <translation>Busca en la carpeta personal, sin carpetas ocultas</translation>
    </message>
    <message>
        <source>Looks in %1</source>
        <translation>Busca en %1</translation>
    </message>
    <message>
        <source>and %1 more: search to see them</source>
        <translation>y %1 más: busque para verlos</translation>
    </message>
    <message>
        <source>the search (%1)</source>
        <translation>la búsqueda (%1)</translation>
    </message>
    <message>
        <source>Not finished: %1</source>
        <translation>Sin terminar: %1</translation>
    </message>
    <message>
        <source>Remove…</source>
        <translation>Eliminar…</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n folder(s) (%1)…</source>
        <translation>
            <numerusform>Eliminar %n carpeta (%1)…</numerusform>
            <numerusform>Eliminar %n carpetas (%1)…</numerusform>
        </translation>
    </message>
    <message>
        <source>What goes</source>
        <translation>Qué se elimina</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n folder(s)?</source>
        <translation>
            <numerusform>¿Eliminar %n carpeta?</numerusform>
            <numerusform>¿Eliminar %n carpetas?</numerusform>
        </translation>
    </message>
    <message>
        <source>They are gone for good, with all that is in them. Sources stay.</source>
        <translation>Se eliminan definitivamente, con todo su contenido. Las fuentes se conservan.</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Eliminar %1</translation>
    </message>
    <message>
        <source>No project here has anything left by a build. “Add folder…” looks in other places too.</source>
        <translation>Ningún proyecto de aquí tiene restos de compilación. «Añadir carpeta…» busca también en otros lugares.</translation>
    </message>
    <message>
        <source>“Stop” ends the search and keeps what it has found.</source>
        <translation>«Detener» termina la búsqueda y conserva lo encontrado.</translation>
    </message>
    <message>
        <source>No projects match</source>
        <translation>Ningún proyecto coincide</translation>
    </message>
    <message>
        <source>The search looks in the path, the folders and the note of each project.</source>
        <translation>Se busca en la ruta, las carpetas y la nota de cada proyecto.</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Borrar búsqueda</translation>
    </message>
    <message>
        <source>The search did not finish</source>
        <translation>La búsqueda no terminó</translation>
    </message>
</context>
<context>
    <name>ProtectedProcesses</name>
    <message>
        <source>It is the first process of this system, which ends with it.</source>
        <translation>Es el primer proceso de este sistema, que termina con él.</translation>
    </message>
    <message>
        <source>It draws the screen: every window closes, and what is not saved in them is lost.</source>
        <translation>Dibuja la pantalla: se cierran todas las ventanas y se pierde lo que no se haya guardado en ellas.</translation>
    </message>
    <message>
        <source>It holds your login: you are logged out, and what is not saved is lost.</source>
        <translation>Mantiene su inicio de sesión: se cierra la sesión y se pierde lo que no se haya guardado.</translation>
    </message>
    <message>
        <source>It runs the services of your login, such as sound and the message bus, and much of the desktop. They end with it.</source>
        <translation>Ejecuta los servicios de su sesión, como el sonido y el bus de mensajes, y gran parte del escritorio. Terminan con él.</translation>
    </message>
    <message>
        <source>Tavrin was started from it and may end with it, as may everything else that was.</source>
        <translation>Tavrin se inició desde él y puede terminar con él, como todo lo demás que se inició así.</translation>
    </message>
</context>
<context>
    <name>QuickKillEditorSheet</name>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Process name pattern (substring match)</source>
        <translation>Patrón del nombre del proceso (subcadena)</translation>
    </message>
    <message>
        <source>Min idle minutes</source>
        <translation>Minutos de inactividad mín.</translation>
    </message>
    <message>
        <source>Min RAM %1 MB</source>
        <translation>RAM mín. %1&#xa0;MB</translation>
    </message>
    <message>
        <source>Use SIGKILL (force)</source>
        <translation>Usar SIGKILL (forzar)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>QuickKillPreset</name>
    <message>
        <source>pattern: %1</source>
        <translation>patrón: %1</translation>
    </message>
    <message>
        <source>idle≥%1m</source>
        <translation>inactivo ≥%1&#xa0;min</translation>
    </message>
    <message>
        <source>RAM≥%1MB</source>
        <translation>RAM ≥%1&#xa0;MB</translation>
    </message>
    <message>
        <source>force</source>
        <translation>forzado</translation>
    </message>
    <message>
        <source>%1: nothing matched</source>
        <translation>%1: sin coincidencias</translation>
    </message>
    <message>
        <source>%1: killed %2/%3</source>
        <translation>%1: %2/%3 terminados</translation>
    </message>
</context>
<context>
    <name>QuickKillsCard</name>
    <message>
        <source>Quick Kills</source>
        <translation>Cierres rápidos</translation>
    </message>
    <message>
        <source>Preset purges for common RAM hogs</source>
        <translation>Preajustes contra los procesos que más RAM suelen ocupar</translation>
    </message>
    <message>
        <source>No presets. The settings add some under Quick Kills, or bring the built-in ones back.</source>
        <translation>Sin ajustes predefinidos. En la configuración, en Cierres rápidos, se añaden o se recuperan los incluidos.</translation>
    </message>
</context>
<context>
    <name>QuickKillsTab</name>
    <message>
        <source>Quick Kills</source>
        <translation>Cierres rápidos</translation>
    </message>
    <message>
        <source>Custom Quick Kill presets</source>
        <translation>Preajustes propios</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Reset to defaults</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>New preset</source>
        <translation>Nuevo preajuste</translation>
    </message>
    <message>
        <source>Edit preset</source>
        <translation>Editar preajuste</translation>
    </message>
</context>
<context>
    <name>Remains</name>
    <message>
        <source>Left by %1</source>
        <translation>Dejado por %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 runs %n time(s) under %2</source>
        <translation>
            <numerusform>%1 se ejecuta %n vez en %2</numerusform>
            <numerusform>%1 se ejecuta %n veces en %2</numerusform>
        </translation>
    </message>
    <message>
        <source>ended %1: %2</source>
        <translation>terminada %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n older one(s)</source>
        <translation>
            <numerusform>%n más antiguo</numerusform>
            <numerusform>%n más antiguos</numerusform>
        </translation>
    </message>
    <message>
        <source>End left-overs</source>
        <translation>Terminar restos</translation>
    </message>
    <message>
        <source>End duplicates</source>
        <translation>Terminar duplicados</translation>
    </message>
</context>
<context>
    <name>RemainsHeader</name>
    <message>
        <source>Expanded</source>
        <translation>Desplegado</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Plegado</translation>
    </message>
</context>
<context>
    <name>ReturnTexts</name>
    <message>
        <source>≤ %1 will come back</source>
        <translation>Se recuperarán ≤ %1</translation>
    </message>
    <message>
        <source>≈ %1 will come back</source>
        <translation>Se recuperarán ≈ %1</translation>
    </message>
    <message>
        <source>Promised: %1 in memory, %2 in swap. Came back: %3 in memory, %4 in swap.</source>
        <translation>Previsto: %1 en memoria, %2 en swap. Recuperado: %3 en memoria, %4 en swap.</translation>
    </message>
</context>
<context>
    <name>RootView</name>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Secciones</translation>
    </message>
    <message>
        <source>Hide sidebar</source>
        <translation>Ocultar la barra lateral</translation>
    </message>
    <message>
        <source>Show sidebar</source>
        <translation>Mostrar la barra lateral</translation>
    </message>
</context>
<context>
    <name>RowButton</name>
    <message>
        <source>%1: %2</source>
        <comment>an action, and what it is about</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>RulesEngine</name>
    <message>
        <source>Free RAM low</source>
        <translation>Poca RAM libre</translation>
    </message>
    <message>
        <source>Only %1 GB free — consider quitting top hogs or cleaning caches.</source>
        <translation>Solo %1&#xa0;GB libres: cierre los procesos más grandes o limpie cachés.</translation>
    </message>
    <message>
        <source>RAM getting tight</source>
        <translation>La RAM escasea</translation>
    </message>
    <message>
        <source>%1 GB free.</source>
        <translation>%1&#xa0;GB libres.</translation>
    </message>
    <message>
        <source>Programs wait for memory</source>
        <translation>Hay programas que esperan memoria</translation>
    </message>
    <message>
        <source>%1 of the last ten seconds. Free RAM, or quit what grows.</source>
        <translation>El %1 de los últimos diez segundos. Libere RAM o cierre lo que crece.</translation>
    </message>
    <message>
        <source>Memory full in about %1 min</source>
        <translation>Memoria llena en unos %1&#xa0;min</translation>
    </message>
    <message>
        <source>Memory full in about %1 min — %2 grow %3/min</source>
        <translation>Memoria llena en unos %1&#xa0;min: %2 crecen %3/min</translation>
    </message>
    <message>
        <source>Memory full in about %1 min — %2 grows %3/min</source>
        <translation>Memoria llena en unos %1&#xa0;min: %2 crece %3/min</translation>
    </message>
    <message>
        <source>%1 are left, with swap.</source>
        <translation>Quedan %1, con swap.</translation>
    </message>
    <message>
        <source>The kernel</source>
        <translation>El núcleo</translation>
    </message>
    <message>
        <source>%1 ended %2 at %3 because memory ran out</source>
        <translation>%1 terminó %2 a las %3 por falta de memoria</translation>
    </message>
    <message>
        <source>%1 ended %2 (PID %3%4) at %5 because memory ran out</source>
        <translation>%1 terminó %2 (PID %3%4) a las %5 por falta de memoria</translation>
    </message>
    <message>
        <source>Judged by what vanished then: the system&apos;s record is not readable.</source>
        <translation>Deducido de lo que desapareció entonces: el registro del sistema no se puede leer.</translation>
    </message>
    <message>
        <source>CPU saturated</source>
        <translation>CPU saturada</translation>
    </message>
    <message>
        <source>%1 total — top: %2</source>
        <translation>%1 en total; el mayor: %2</translation>
    </message>
    <message>
        <source>%1 is running hot (%2)</source>
        <translation>%1 se está calentando (%2)</translation>
    </message>
    <message>
        <source>%1 is throttling — reduce parallel agentic work or quit Docker/ollama.</source>
        <translation>%1 reduce la velocidad: ejecute menos agentes en paralelo o cierre Docker/ollama.</translation>
    </message>
    <message>
        <source>Heavy swap usage</source>
        <translation>Uso intenso de swap</translation>
    </message>
    <message>
        <source>%1 GB swapped — system will feel sluggish.</source>
        <translation>%1&#xa0;GB en swap: el sistema irá lento.</translation>
    </message>
    <message>
        <source>Idle agent — %1</source>
        <translation>Agente inactivo: %1</translation>
    </message>
    <message>
        <source>Idle agent — %1 in %2</source>
        <translation>Agente inactivo: %1 en %2</translation>
    </message>
    <message>
        <source>Idle %1 min, %2 RAM. Quit?</source>
        <translation>Inactivo desde hace %1&#xa0;min, %2 de RAM. ¿Cerrar?</translation>
    </message>
    <message>
        <source>Idle %1 min, %2 RAM.</source>
        <translation>Inactivo desde hace %1&#xa0;min, %2 de RAM.</translation>
    </message>
    <message>
        <source>Browsers using %1</source>
        <translation>Los navegadores usan %1</translation>
    </message>
    <message>
        <source>That&apos;s %1 of total RAM. Closing idle tabs frees the most memory fastest.</source>
        <translation>Es el %1 del total de RAM. Cerrar pestañas inactivas es lo que más memoria libera y más rápido.</translation>
    </message>
    <message>
        <source>Caches reclaimable: %1</source>
        <translation>Cachés recuperables: %1</translation>
    </message>
    <message>
        <source>%1 holds %2</source>
        <translation>%1 ocupa %2</translation>
    </message>
</context>
<context>
    <name>SamplingTab</name>
    <message>
        <source>Sampling</source>
        <translation>Muestreo</translation>
    </message>
    <message>
        <source>Sampling cadence</source>
        <translation>Cadencia de muestreo</translation>
    </message>
    <message>
        <source>Poll interval</source>
        <translation>Intervalo de muestreo</translation>
    </message>
    <message>
        <source>%1s</source>
        <translation>%1&#xa0;s</translation>
    </message>
    <message>
        <source>History retention</source>
        <translation>Duración del historial</translation>
    </message>
    <message>
        <source>Keeps %1 samples for the Overview sparklines.</source>
        <translation>Conserva %1 muestras para las curvas del resumen.</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Energía</translation>
    </message>
    <message>
        <source>Pause sampling on Low Power Mode</source>
        <translation>Pausar el muestreo en modo de ahorro de energía</translation>
    </message>
</context>
<context>
    <name>SamplingTexts</name>
    <message>
        <source>Processes are not read while power is low. “Pause sampling on Low Power Mode” in the settings, under Sampling, changes that.</source>
        <translation>Los procesos no se leen con ahorro de energía. Lo cambia «Pausar el muestreo en modo de ahorro de energía» en la configuración, en Muestreo.</translation>
    </message>
    <message>
        <source>The system lists no processes now. F5 reads them again.</source>
        <translation>El sistema no muestra procesos ahora. F5 los vuelve a leer.</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Clear search</source>
        <translation>Borrar búsqueda</translation>
    </message>
</context>
<context>
    <name>ServerRow</name>
    <message>
        <source>Quit</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Orphan %1, PID %2, parent: %3, %4</source>
        <translation>Huérfano %1, PID %2, padre: %3, %4</translation>
    </message>
    <message>
        <source>Running %1, PID %2, parent: %3, %4</source>
        <translation>En marcha %1, PID %2, padre: %3, %4</translation>
    </message>
    <message>
        <source>parent: %1</source>
        <translation>padre: %1</translation>
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
        <translation>%1, sin CPU desde hace %2&#xa0;h</translation>
    </message>
    <message>
        <source>%1, no CPU for %2 min</source>
        <translation>%1, sin CPU desde hace %2&#xa0;min</translation>
    </message>
    <message>
        <source>in use by %1</source>
        <translation>en uso por %1</translation>
    </message>
    <message>
        <source>in use by %1 in %2</source>
        <translation>en uso por %1 en %2</translation>
    </message>
    <message>
        <source>runs in the container %1</source>
        <translation>se ejecuta en el contenedor %1</translation>
    </message>
    <message>
        <source>run by the service manager as %1</source>
        <translation>ejecutado por el gestor de servicios como %1</translation>
    </message>
    <message>
        <source>orphan: no agent or editor above it</source>
        <translation>huérfano: sin agente ni editor por encima</translation>
    </message>
    <message>
        <source>orphan: its host %1 ended at %2</source>
        <translation>huérfano: su anfitrión %1 terminó a las %2</translation>
    </message>
    <message>
        <source>orphan: no longer below its host %1</source>
        <translation>huérfano: ya no está bajo su anfitrión %1</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>%1 in %2</source>
        <translation>%1 en %2</translation>
    </message>
</context>
<context>
    <name>SessionActions</name>
    <message>
        <source>End %1?</source>
        <translation>¿Terminar %1?</translation>
    </message>
    <message>
        <source>End session</source>
        <translation>Terminar sesión</translation>
    </message>
    <message>
        <source>Could not pause %1.</source>
        <translation>No se pudo pausar %1.</translation>
    </message>
    <message>
        <source>Could not resume %1.</source>
        <translation>No se pudo reanudar %1.</translation>
    </message>
    <message>
        <source>Could not open %1.</source>
        <translation>No se pudo abrir %1.</translation>
    </message>
</context>
<context>
    <name>SessionControls</name>
    <message>
        <source>Search sessions</source>
        <translation>Buscar sesiones</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>Ordenar</translation>
    </message>
    <message>
        <source>Agent, project, name, state, process or port (:5173)</source>
        <translation>Agente, proyecto, nombre, estado, proceso o puerto (:5173)</translation>
    </message>
</context>
<context>
    <name>SessionDialogs</name>
    <message>
        <source>What ends</source>
        <translation>Qué termina</translation>
    </message>
    <message>
        <source>The agent is asked first and has 5 s to save. What it started ends with it, and what stays is force-killed.</source>
        <translation>Primero se le pide al agente, que tiene 5 s para guardar. Lo que inició termina con él, y lo que quede se cierra a la fuerza.</translation>
    </message>
    <message>
        <source>The processes are asked to end, and what stays is force-killed.</source>
        <translation>Se pide a los procesos que terminen, y lo que quede se cierra a la fuerza.</translation>
    </message>
    <message>
        <source>This takes the conversation up again: %1</source>
        <translation>Para retomar la conversación: %1</translation>
    </message>
    <message>
        <source>Stops the session and all that it started: they keep their memory and use no processor time until you resume them, or close this program.</source>
        <translation>Detiene la sesión y todo lo que inició: conservan su memoria y no usan el procesador hasta que los reanude o cierre este programa.</translation>
    </message>
    <message>
        <source>The terminal&apos;s shell may report the agent as stopped. After Resume, type fg there.</source>
        <translation>El shell del terminal puede indicar que el agente está detenido. Tras reanudar, escriba fg allí.</translation>
    </message>
    <message>
        <source>Pause %1?</source>
        <translation>¿Pausar %1?</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
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
        <translation>activo %1</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Desplegado</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Plegado</translation>
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
        <translation>escucha en %1</translation>
    </message>
    <message>
        <source>running for %1</source>
        <translation>en marcha desde hace %1</translation>
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
        <translation>%1: %2 de %3 terminados, ~%4 liberados</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Take the conversation up again: %1</source>
        <translation>Retomar la conversación: %1</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy command</source>
        <translation>Copiar orden</translation>
    </message>
</context>
<context>
    <name>SessionRow</name>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Copy details</source>
        <translation>Copiar detalles</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Terminar</translation>
    </message>
    <message>
        <source>End session</source>
        <translation>Terminar sesión</translation>
    </message>
    <message>
        <source>Pause…</source>
        <translation>Pausar…</translation>
    </message>
    <message>
        <source>End session…</source>
        <translation>Terminar sesión…</translation>
    </message>
</context>
<context>
    <name>SessionTexts</name>
    <message>
        <source>agent</source>
        <translation>agente</translation>
    </message>
    <message>
        <source>Agent</source>
        <translation>Agente</translation>
    </message>
    <message numerus="yes">
        <source>%n agent(s)</source>
        <translation>
            <numerusform>%n agente</numerusform>
            <numerusform>%n agentes</numerusform>
        </translation>
    </message>
    <message>
        <source>MCP server</source>
        <translation>servidor MCP</translation>
    </message>
    <message>
        <source>MCP servers</source>
        <translation>Servidores MCP</translation>
    </message>
    <message numerus="yes">
        <source>%n server(s)</source>
        <translation>
            <numerusform>%n servidor</numerusform>
            <numerusform>%n servidores</numerusform>
        </translation>
    </message>
    <message>
        <source>dev server</source>
        <translation>servidor de desarrollo</translation>
    </message>
    <message>
        <source>Dev servers</source>
        <translation>Servidores de desarrollo</translation>
    </message>
    <message numerus="yes">
        <source>%n dev server(s)</source>
        <translation>
            <numerusform>%n servidor de desarrollo</numerusform>
            <numerusform>%n servidores de desarrollo</numerusform>
        </translation>
    </message>
    <message>
        <source>browser</source>
        <translation>navegador</translation>
    </message>
    <message>
        <source>Browsers</source>
        <translation>Navegadores</translation>
    </message>
    <message numerus="yes">
        <source>%n browser(s)</source>
        <translation>
            <numerusform>%n navegador</numerusform>
            <numerusform>%n navegadores</numerusform>
        </translation>
    </message>
    <message>
        <source>command</source>
        <translation>orden</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Órdenes</translation>
    </message>
    <message numerus="yes">
        <source>%n command(s)</source>
        <translation>
            <numerusform>%n orden</numerusform>
            <numerusform>%n órdenes</numerusform>
        </translation>
    </message>
    <message>
        <source>Working</source>
        <translation>Trabajando</translation>
    </message>
    <message>
        <source>Waiting for you</source>
        <translation>Le espera</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Inactiva</translation>
    </message>
    <message numerus="yes">
        <source>%n session(s)</source>
        <translation>
            <numerusform>%n sesión</numerusform>
            <numerusform>%n sesiones</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n idle</source>
        <translation>
            <numerusform>%n inactiva</numerusform>
            <numerusform>%n inactivas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n process(es)</source>
        <translation>
            <numerusform>%n proceso</numerusform>
            <numerusform>%n procesos</numerusform>
        </translation>
    </message>
    <message>
        <source>resident %1</source>
        <translation>residente %1</translation>
    </message>
</context>
<context>
    <name>SessionsView</name>
    <message>
        <source>No sessions</source>
        <translation>No hay sesiones</translation>
    </message>
    <message>
        <source>Coding agents that run in a terminal or an editor appear here, each with its MCP servers, dev servers, browsers and commands, and with what an ended one left running.</source>
        <translation>Aquí aparecen los agentes de programación que se ejecutan en un terminal o un editor, cada uno con sus servidores MCP, servidores de desarrollo, navegadores y órdenes, y con lo que uno terminado dejó en marcha.</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Borrar búsqueda</translation>
    </message>
    <message>
        <source>No sessions match</source>
        <translation>Ninguna sesión coincide</translation>
    </message>
    <message>
        <source>Every word of the search has to be in the agent, the project, the name, the state, a process or a port of the session.</source>
        <translation>Cada palabra de la búsqueda debe estar en el agente, el proyecto, el nombre, el estado, un proceso o un puerto de la sesión.</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>Sesiones</translation>
    </message>
    <message>
        <source>Left-overs</source>
        <translation>Restos</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Duplicados</translation>
    </message>
</context>
<context>
    <name>SettingsScene</name>
    <message>
        <source>Tavrin Settings</source>
        <translation>Ajustes de Tavrin</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Pestañas</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Pestaña siguiente</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Pestaña anterior</translation>
    </message>
</context>
<context>
    <name>ShortcutsSheet</name>
    <message>
        <source>Keyboard</source>
        <translation>Teclado</translation>
    </message>
    <message>
        <source>Everywhere</source>
        <translation>En todas partes</translation>
    </message>
    <message>
        <source>Go to a section</source>
        <translation>Ir a una sección</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>Cerrar la ventana</translation>
    </message>
    <message>
        <source>Quit Tavrin</source>
        <translation>Salir de Tavrin</translation>
    </message>
    <message>
        <source>This sheet</source>
        <translation>Esta hoja</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Procesos</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Jump to a name</source>
        <translation>Saltar a un nombre</translation>
    </message>
    <message>
        <source>its first letters</source>
        <translation>sus primeras letras</translation>
    </message>
    <message>
        <source>First and last row</source>
        <translation>Primera y última fila</translation>
    </message>
    <message>
        <source>Select more rows, or all</source>
        <translation>Seleccionar más filas, o todas</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Force kill</source>
        <translation>Cierre forzado</translation>
    </message>
    <message>
        <source>Menu of the row</source>
        <translation>Menú de la fila</translation>
    </message>
    <message>
        <source>Copy the selected rows</source>
        <translation>Copiar las filas seleccionadas</translation>
    </message>
    <message>
        <source>Fold or open a branch of the tree</source>
        <translation>Plegar o desplegar una rama del árbol</translation>
    </message>
    <message>
        <source>Read and sort anew</source>
        <translation>Leer y ordenar de nuevo</translation>
    </message>
    <message>
        <source>Leave the row</source>
        <translation>Dejar la fila</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Show or hide the sidebar</source>
        <translation>Mostrar u ocultar la barra lateral</translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>In progress</source>
        <translation>En curso</translation>
    </message>
</context>
<context>
    <name>Stepper</name>
    <message>
        <source>Less: %1</source>
        <translation>Menos: %1</translation>
    </message>
    <message>
        <source>More: %1</source>
        <translation>Más: %1</translation>
    </message>
</context>
<context>
    <name>SummedMemory</name>
    <message>
        <source>resident %1, in swap %2</source>
        <translation>residente %1, en swap %2</translation>
    </message>
    <message>
        <source>at least %1 (%2)</source>
        <translation>al menos %1 (%2)</translation>
    </message>
    <message>
        <source>about %1 (%2)</source>
        <translation>unos %1 (%2)</translation>
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
        <translation>Copiar</translation>
    </message>
</context>
<context>
    <name>TextListEditor</name>
    <message>
        <source>Remove %1</source>
        <translation>Eliminar %1</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Elegir carpeta…</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>Elegir carpeta</translation>
    </message>
</context>
<context>
    <name>ThermalPage</name>
    <message>
        <source>Thermal</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>No temperatures</source>
        <translation>Sin temperaturas</translation>
    </message>
    <message>
        <source>This computer shows no sensors to programs, as most virtual machines. The tile shows the state that the kernel reports.</source>
        <translation>Este equipo no muestra sensores a los programas, como la mayoría de las máquinas virtuales. El mosaico muestra el estado que informa el núcleo.</translation>
    </message>
    <message>
        <source>Sensors</source>
        <translation>Sensores</translation>
    </message>
    <message>
        <source>A sensor does not answer. It is asked again once it does, while this page is open.</source>
        <translation>Un sensor no responde. Se le volverá a preguntar en cuanto lo haga, mientras esta página esté abierta.</translation>
    </message>
</context>
<context>
    <name>ThermalState</name>
    <message>
        <source>Cool</source>
        <translation>Frío</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Templado</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Caliente</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Crítico</translation>
    </message>
</context>
<context>
    <name>Translations</name>
    <message>
        <source>Claude Code plugin cache</source>
        <translation>Plugins de Claude Code</translation>
    </message>
    <message>
        <source>npx cache</source>
        <translation>Caché de npx</translation>
    </message>
    <message>
        <source>Playwright browsers</source>
        <translation>Navegadores de Playwright</translation>
    </message>
    <message>
        <source>User caches</source>
        <translation>Cachés del usuario</translation>
    </message>
    <message>
        <source>User logs</source>
        <translation>Registros del usuario</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Papelera</translation>
    </message>
    <message>
        <source>Old /tmp (&gt;7d)</source>
        <translation>Antiguo en /tmp (&gt;7 d)</translation>
    </message>
    <message>
        <source>Old Downloads (&gt;30d)</source>
        <translation>Descargas antiguas (&gt;30 d)</translation>
    </message>
    <message>
        <source>Old Desktop screenshots (&gt;30d)</source>
        <translation>Capturas antiguas (&gt;30 d)</translation>
    </message>
    <message>
        <source>Claude Code &amp; Agents</source>
        <translation>Claude Code &amp; agentes</translation>
    </message>
    <message>
        <source>IDEs</source>
        <translation>IDE</translation>
    </message>
    <message>
        <source>Terminals</source>
        <translation>Terminales</translation>
    </message>
    <message>
        <source>Browsers</source>
        <translation>Navegadores</translation>
    </message>
    <message>
        <source>Docker &amp; Containers</source>
        <translation>Docker &amp; contenedores</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Otros</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Gradle logs (&gt;7d)</source>
        <translation>Registros de Gradle (&gt;7 d)</translation>
    </message>
    <message>
        <source>Cargo sources and checkouts</source>
        <translation>Fuentes y repositorios de Cargo</translation>
    </message>
    <message>
        <source>Go build cache</source>
        <translation>Caché de compilación de Go</translation>
    </message>
    <message>
        <source>Rust toolchains</source>
        <translation>Cadenas de herramientas de Rust</translation>
    </message>
    <message>
        <source>Conda packages</source>
        <translation>Paquetes de Conda</translation>
    </message>
    <message>
        <source>Editor caches</source>
        <translation>Cachés de editores</translation>
    </message>
    <message>
        <source>Local history of JetBrains editors</source>
        <translation>Historial local de los editores JetBrains</translation>
    </message>
    <message>
        <source>Agent logs (&gt;7d)</source>
        <translation>Registros de agentes (&gt;7 d)</translation>
    </message>
    <message>
        <source>Agent shell snapshots (&gt;30d)</source>
        <translation>Instantáneas de shell de agentes (&gt;30 d)</translation>
    </message>
    <message>
        <source>Texts pasted into Claude Code (&gt;30d)</source>
        <translation>Textos pegados en Claude Code (&gt;30 d)</translation>
    </message>
    <message>
        <source>Hugging Face models</source>
        <translation>Modelos de Hugging Face</translation>
    </message>
    <message>
        <source>Ollama models</source>
        <translation>Modelos de Ollama</translation>
    </message>
    <message>
        <source>LM Studio models</source>
        <translation>Modelos de LM Studio</translation>
    </message>
    <message>
        <source>Flatpak application caches</source>
        <translation>Cachés de aplicaciones Flatpak</translation>
    </message>
    <message>
        <source>Snap application caches</source>
        <translation>Cachés de aplicaciones Snap</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Miniaturas</translation>
    </message>
    <message>
        <source>Shader caches</source>
        <translation>Cachés de sombreadores</translation>
    </message>
    <message>
        <source>Crash reports (&gt;7d)</source>
        <translation>Informes de fallos (&gt;7 d)</translation>
    </message>
    <message>
        <source>Downloaded system packages</source>
        <translation>Paquetes del sistema descargados</translation>
    </message>
    <message>
        <source>System journal over 500 MB</source>
        <translation>Registro del sistema por encima de 500 MB</translation>
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
        <translation>Solo icono</translation>
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
        <translation>1 hora</translation>
    </message>
    <message>
        <source>Project leftovers</source>
        <translation>Restos de proyectos</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Optimize</source>
        <translation>Optimizar</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Procesos</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <translation>Limpieza</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>Sesiones</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Last active</source>
        <translation>Última actividad</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Proyecto</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Sampling</source>
        <translation>Muestreo</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Alertas</translation>
    </message>
    <message>
        <source>Quick Kills</source>
        <translation>Cierres rápidos</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
</context>
<context>
    <name>WidgetView</name>
    <message>
        <source>Open dashboard</source>
        <translation>Abrir la ventana principal</translation>
    </message>
    <message>
        <source>Hide widget</source>
        <translation>Ocultar widget</translation>
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
        <translation>Disco libre</translation>
    </message>
    <message>
        <source>Therm</source>
        <translation>Temp.</translation>
    </message>
    <message>
        <source>Groups (RAM)</source>
        <translation>Grupos (RAM)</translation>
    </message>
    <message numerus="yes">
        <source>+ %n more alert(s)</source>
        <translation>
            <numerusform>+ %n alerta más</numerusform>
            <numerusform>+ %n alertas más</numerusform>
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
        <translation>El equipo</translation>
    </message>
    <message>
        <source>task bar</source>
        <translation>la barra de tareas</translation>
    </message>
    <message>
        <source>Status area</source>
        <translation>Área de estado</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Símbolo</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
</context>
</TS>
