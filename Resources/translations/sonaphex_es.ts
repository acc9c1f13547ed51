<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AcceptDragImageView</name>
    <message>
        <source>Cover</source>
        <translation>Carátula</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Sin imagen</translation>
    </message>
    <message>
        <source>A picture; Delete removes it</source>
        <translation>Una imagen; Supr la quita</translation>
    </message>
</context>
<context>
    <name>Alerts</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>Announcement</name>
    <message>
        <source>Announcements</source>
        <translation>Avisos</translation>
    </message>
</context>
<context>
    <name>AppDelegate</name>
    <message>
        <source>The file cannot be opened.</source>
        <translation>No se puede abrir el archivo.</translation>
    </message>
    <message>
        <source>it is already running</source>
        <translation>ya está en ejecución</translation>
    </message>
</context>
<context>
    <name>Audio</name>
    <message>
        <source>the device is not there</source>
        <translation>el dispositivo no está presente</translation>
    </message>
    <message>
        <source>the sound server refused to capture the device</source>
        <translation>el servidor de sonido rechazó capturar el dispositivo</translation>
    </message>
    <message>
        <source>%1 is not installed: no sound server answers and none can be started</source>
        <translation>%1 no está instalado: no responde ningún servidor de sonido y no se puede iniciar ninguno</translation>
    </message>
    <message>
        <source>the private sound server did not start</source>
        <translation>el servidor de sonido privado no se inició</translation>
    </message>
    <message>
        <source>the private sound server came up without its devices</source>
        <translation>el servidor de sonido privado se inició sin sus dispositivos</translation>
    </message>
    <message>
        <source>no sound server answers: %1</source>
        <translation>no responde ningún servidor de sonido: %1</translation>
    </message>
    <message>
        <source>the sound server went away</source>
        <translation>el servidor de sonido dejó de estar disponible</translation>
    </message>
    <message>
        <source>this unit captures only</source>
        <translation>esta unidad de audio solo captura</translation>
    </message>
    <message>
        <source>the unit is running</source>
        <translation>la unidad de audio está en marcha</translation>
    </message>
    <message>
        <source>there is no device number %1</source>
        <translation>no hay ningún dispositivo con el número %1</translation>
    </message>
    <message>
        <source>%1 has no input</source>
        <translation>%1 no tiene ninguna entrada</translation>
    </message>
    <message>
        <source>no device is set</source>
        <translation>no se ha definido ningún dispositivo</translation>
    </message>
    <message>
        <source>the unit delivers 32-bit float, one buffer a channel, at the device&apos;s rate only</source>
        <translation>la unidad de audio solo entrega coma flotante de 32 bits, un búfer por canal, a la frecuencia del dispositivo</translation>
    </message>
    <message>
        <source>no device or no callback is set</source>
        <translation>falta definir el dispositivo o la función de retorno</translation>
    </message>
    <message>
        <source>the input is not enabled</source>
        <translation>la entrada no está activada</translation>
    </message>
    <message>
        <source>the unit is not initialised</source>
        <translation>la unidad de audio no está inicializada</translation>
    </message>
    <message>
        <source>the sound server accepts connections but does not answer. Restart it (systemctl --user restart pipewire) and try again</source>
        <translation>el servidor de sonido acepta conexiones, pero no responde. Reinícielo (systemctl --user restart pipewire) e inténtelo de nuevo</translation>
    </message>
    <message>
        <source>the stream failed</source>
        <translation>el flujo falló</translation>
    </message>
    <message>
        <source>the device went away</source>
        <translation>el dispositivo dejó de estar disponible</translation>
    </message>
    <message>
        <source>no sound server answers: a private one was started, its input device is a tone</source>
        <translation>no responde ningún servidor de sonido: se inició uno privado, cuyo dispositivo de entrada es un tono de prueba</translation>
    </message>
</context>
<context>
    <name>AudioDataSourceView</name>
    <message>
        <source>&amp;Tick or Untick</source>
        <translation>&amp;Marcar o desmarcar</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Subir</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>&amp;Bajar</translation>
    </message>
    <message>
        <source>&amp;Remove from This List</source>
        <translation>&amp;Quitar de esta lista</translation>
    </message>
    <message>
        <source>The file itself stays</source>
        <translation>El archivo en sí se conserva</translation>
    </message>
    <message>
        <source>No music yet. Press “Add Files…” or drop sound files here.</source>
        <translation>Todavía no hay música. Pulse «Añadir archivos…» o suelte aquí archivos de sonido.</translation>
    </message>
</context>
<context>
    <name>AudioEditTimeView</name>
    <message>
        <source>Play position</source>
        <translation>Posición de reproducción</translation>
    </message>
</context>
<context>
    <name>AudioFilterController</name>
    <message>
        <source>Short Recordings</source>
        <translation>Grabaciones cortas</translation>
    </message>
    <message>
        <source>Recordings of at &amp;most</source>
        <translation>Grabaciones de co&amp;mo máximo</translation>
    </message>
    <message>
        <source>0 shows every recording.</source>
        <translation>0 muestra todas las grabaciones.</translation>
    </message>
    <message>
        <source>Recordings of at most this many seconds</source>
        <translation>Duración máxima de las grabaciones en segundos</translation>
    </message>
    <message>
        <source> seconds</source>
        <translation> segundos</translation>
    </message>
    <message>
        <source>Short recordings</source>
        <translation>Grabaciones cortas</translation>
    </message>
    <message>
        <source>Ticked recordings</source>
        <translation>Grabaciones marcadas</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>%1 ticked, %2</source>
        <translation>Marcadas: %1, %2</translation>
    </message>
    <message>
        <source>Do you want to move these items to the trash?</source>
        <translation>¿Desea mover estos elementos a la papelera?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>AudioPlayProgressView</name>
    <message>
        <source>Playback position</source>
        <translation>Posición de reproducción</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
</context>
<context>
    <name>AudioPointerLineView</name>
    <message>
        <source>Play pointer</source>
        <translation>Puntero de reproducción</translation>
    </message>
</context>
<context>
    <name>AudioRecordWaveView</name>
    <message>
        <source>Recording level</source>
        <translation>Nivel de grabación</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 %, clipped</source>
        <translation>%1 %, saturado</translation>
    </message>
</context>
<context>
    <name>AudioRowDelegate</name>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
</context>
<context>
    <name>AudioTableModel</name>
    <message>
        <source>The file is no longer there.</source>
        <translation>El archivo ya no está ahí.</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>En reproducción</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artista</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Álbum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Ruta</translation>
    </message>
    <message>
        <source>No mark</source>
        <translation>Sin marca</translation>
    </message>
</context>
<context>
    <name>AudioTrimEditView</name>
    <message>
        <source>Range to keep</source>
        <translation>Intervalo que se conserva</translation>
    </message>
    <message>
        <source>Play position</source>
        <translation>Posición de reproducción</translation>
    </message>
    <message>
        <source>Begin of the range to keep</source>
        <translation>Inicio de la parte que se conserva</translation>
    </message>
    <message>
        <source>End of the range to keep</source>
        <translation>Final de la parte que se conserva</translation>
    </message>
</context>
<context>
    <name>AudioTrimSave</name>
    <message>
        <source>The file “%1” is no longer there.</source>
        <translation>El archivo «%1» ya no está ahí.</translation>
    </message>
    <message>
        <source>The file “%1” is still being recorded to.</source>
        <translation>Todavía se está grabando en el archivo «%1».</translation>
    </message>
    <message>
        <source>The range is shorter than a tenth of a second.</source>
        <translation>El intervalo dura menos de una décima de segundo.</translation>
    </message>
    <message>
        <source>There is no room left on the disk.</source>
        <translation>No queda espacio en el disco.</translation>
    </message>
    <message>
        <source>The tags could not be written.</source>
        <translation>No se pudieron escribir las etiquetas.</translation>
    </message>
    <message>
        <source>the new file</source>
        <translation>el archivo nuevo</translation>
    </message>
    <message>
        <source>It was stopped before the end.</source>
        <translation>Se detuvo antes del final.</translation>
    </message>
</context>
<context>
    <name>AudioTrimWnd</name>
    <message>
        <source>Trim</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Grabación</translation>
    </message>
    <message>
        <source>Play time</source>
        <translation>Tiempo de reproducción</translation>
    </message>
    <message>
        <source>Begin of the range</source>
        <translation>Inicio del intervalo</translation>
    </message>
    <message>
        <source>Length of the range</source>
        <translation>Duración del intervalo</translation>
    </message>
    <message>
        <source>End of the range</source>
        <translation>Fin del intervalo</translation>
    </message>
    <message>
        <source>Set here</source>
        <translation>Fijar aquí</translation>
    </message>
    <message>
        <source>Move the begin of the range to the play position</source>
        <translation>Mover el inicio del intervalo a la posición de reproducción</translation>
    </message>
    <message>
        <source>Move the end of the range to the play position</source>
        <translation>Mover el fin del intervalo a la posición de reproducción</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>P&amp;review</source>
        <translation>Pree&amp;scucha</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Guardar &amp;como…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
</context>
<context>
    <name>AudioTrimWndController</name>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>The range is shorter than a tenth of a second.</source>
        <translation>El intervalo dura menos de una décima de segundo.</translation>
    </message>
    <message>
        <source>The file is being played.</source>
        <translation>El archivo se está reproduciendo.</translation>
    </message>
    <message>
        <source>The recording cannot be saved.</source>
        <translation>No se puede guardar la grabación.</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>The recording was not saved.</source>
        <translation>No se guardó la grabación.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Waring:</source>
        <translation>Advertencia:</translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation>Advertencia:</translation>
    </message>
    <message>
        <source>This path exists, please change the path or name.</source>
        <translation>Esta ruta ya existe; cambie la ruta o el nombre.</translation>
    </message>
    <message>
        <source>Converting Audio......</source>
        <translation>Convirtiendo el audio......</translation>
    </message>
    <message>
        <source>Do you want to replace &quot;%1&quot; audio file.</source>
        <translation>¿Desea reemplazar el archivo de audio «%1»?</translation>
    </message>
</context>
<context>
    <name>AudioWaveEditView</name>
    <message>
        <source>Outline</source>
        <translation>Forma de onda</translation>
    </message>
</context>
<context>
    <name>AudioWaveTrimView</name>
    <message>
        <source>Selection</source>
        <translation>Selección</translation>
    </message>
    <message>
        <source>Drag the edges or the middle. Left and Right move the selection, with Control its begin, with Alt its end; with Shift by a second.</source>
        <translation>Arrastre los bordes o el centro. Izquierda y Derecha mueven la selección; con Control, su inicio; con Alt, su fin; con Mayús, de segundo en segundo.</translation>
    </message>
    <message>
        <source>from %1 to %2, %3 seconds</source>
        <translation>de %1 a %2, %3 segundos</translation>
    </message>
</context>
<context>
    <name>AudioWaveViewController</name>
    <message>
        <source>Recording state</source>
        <translation>Estado de la grabación</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artista</translation>
    </message>
    <message>
        <source>Switch between recording and playback</source>
        <translation>Cambiar entre grabación y reproducción</translation>
    </message>
    <message>
        <source>Show the next notice</source>
        <translation>Mostrar el aviso siguiente</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>What can be done about the notice</source>
        <translation>Qué se puede hacer con el aviso</translation>
    </message>
    <message>
        <source>Dismiss this notice</source>
        <translation>Descartar este aviso</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Choose Device</source>
        <translation>Elegir dispositivo</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Activar sonido</translation>
    </message>
    <message>
        <source>Free Space …</source>
        <translation>Liberar espacio …</translation>
    </message>
    <message>
        <source>Notice %1 of %2. Show the next one</source>
        <translation>Aviso %1 de %2. Mostrar el siguiente</translation>
    </message>
    <message>
        <source>Recording time</source>
        <translation>Tiempo de grabación</translation>
    </message>
    <message>
        <source>Played</source>
        <translation>Transcurrido</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Restante</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Waiting for the first sound</source>
        <translation>A la espera del primer sonido</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Grabando</translation>
    </message>
    <message>
        <source>Nothing is being recorded</source>
        <translation>No se graba nada</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>Finishing the recording</source>
        <translation>Se está terminando la grabación</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>No se está grabando</translation>
    </message>
</context>
<context>
    <name>BalanceSave</name>
    <message>
        <source>It was stopped before the end.</source>
        <translation>Se detuvo antes del final.</translation>
    </message>
    <message>
        <source>The file “%1” is no longer there.</source>
        <translation>El archivo «%1» ya no está ahí.</translation>
    </message>
    <message>
        <source>The file “%1” is still being recorded to.</source>
        <translation>Todavía se está grabando en el archivo «%1».</translation>
    </message>
    <message>
        <source>The sum of both tracks is too loud and would be clipped.</source>
        <translation>La suma de ambas pistas es demasiado fuerte y se saturaría.</translation>
    </message>
    <message>
        <source>the new file</source>
        <translation>el archivo nuevo</translation>
    </message>
</context>
<context>
    <name>BalanceView</name>
    <message>
        <source>Play position</source>
        <translation>Posición de reproducción</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Computer audio</source>
        <translation>Audio del equipo</translation>
    </message>
</context>
<context>
    <name>BalanceWnd</name>
    <message>
        <source>Balance</source>
        <translation>Balance</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Grabación</translation>
    </message>
    <message>
        <source>Play time</source>
        <translation>Tiempo de reproducción</translation>
    </message>
    <message>
        <source>&amp;Input</source>
        <translation>&amp;Entrada</translation>
    </message>
    <message>
        <source>Gain of the input</source>
        <translation>Ganancia de la entrada</translation>
    </message>
    <message>
        <source> dB</source>
        <translation> dB</translation>
    </message>
    <message>
        <source>&amp;Computer audio</source>
        <translation>&amp;Audio del equipo</translation>
    </message>
    <message>
        <source>Gain of computer audio</source>
        <translation>Ganancia del audio del equipo</translation>
    </message>
    <message>
        <source>&amp;Delay of computer audio</source>
        <translation>Re&amp;tardo del audio del equipo</translation>
    </message>
    <message>
        <source>Delay of computer audio</source>
        <translation>Retardo del audio del equipo</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Nivel sonoro</translation>
    </message>
    <message>
        <source>&amp;Lower to Fit</source>
        <translation>E&amp;vitar la saturación</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Restablecer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Guardar &amp;como…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
</context>
<context>
    <name>BalanceWndController</name>
    <message>
        <source>Silent</source>
        <comment>a track that is not in the mix</comment>
        <translation>Silenciada</translation>
    </message>
    <message>
        <source>The tracks cannot be played.</source>
        <translation>No se pueden reproducir las pistas.</translation>
    </message>
    <message>
        <source>Both gains and the delay are 0.</source>
        <translation>Ambas ganancias y el retardo están a 0.</translation>
    </message>
    <message>
        <source>Measuring the loudest point …</source>
        <translation>Midiendo el punto más fuerte …</translation>
    </message>
    <message>
        <source>Too loud by %1 dB: the loudest parts would be clipped.</source>
        <translation>Supera el límite en %1 dB: las partes más fuertes se saturarían.</translation>
    </message>
    <message>
        <source>The mix is silent.</source>
        <translation>La mezcla está en silencio.</translation>
    </message>
    <message>
        <source>Loudest point: %1 dB below the limit</source>
        <translation>Punto más fuerte: %1 dB por debajo del límite</translation>
    </message>
    <message>
        <source>Lowers both gains until nothing is clipped</source>
        <translation>Baja ambas ganancias hasta que nada se sature</translation>
    </message>
    <message>
        <source>Nothing would be clipped.</source>
        <translation>Nada se saturaría.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>The file is being played.</source>
        <translation>El archivo se está reproduciendo.</translation>
    </message>
    <message>
        <source>The recording cannot be saved.</source>
        <translation>No se puede guardar la grabación.</translation>
    </message>
    <message>
        <source>Do you want to replace &quot;%1&quot; with the new mix? Its tracks stay.</source>
        <translation>¿Desea reemplazar «%1» por la mezcla nueva? Sus pistas se conservan.</translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation>Advertencia:</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>This path exists, please change the path or name.</source>
        <translation>Esta ruta ya existe; cambie la ruta o el nombre.</translation>
    </message>
    <message>
        <source>Lower Both by %1 dB</source>
        <translation>Bajar ambas %1 dB</translation>
    </message>
    <message>
        <source>The mix is too loud.</source>
        <translation>La mezcla es demasiado fuerte.</translation>
    </message>
    <message>
        <source>Its loudest parts would be clipped. Lower both gains, and nothing is clipped.</source>
        <translation>Sus partes más fuertes se saturarían. Baje ambas ganancias para que nada se sature.</translation>
    </message>
    <message>
        <source>The recording was not saved.</source>
        <translation>No se guardó la grabación.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>The new mix is saved.</source>
        <translation>La mezcla nueva se ha guardado.</translation>
    </message>
</context>
<context>
    <name>BurnControl</name>
    <message>
        <source>there is no drive</source>
        <translation>no hay ninguna unidad</translation>
    </message>
</context>
<context>
    <name>BurnState</name>
    <message>
        <source>Waiting for the import Music File</source>
        <translation>Esperando a que se añada música</translation>
    </message>
    <message>
        <source>Waiting for the inserted Disc</source>
        <translation>Esperando a que se inserte un disco</translation>
    </message>
    <message>
        <source>Is not blank, Please erase the Disc</source>
        <translation>No está en blanco; borre el disco</translation>
    </message>
    <message>
        <source>Is not blank, Please replace the Disc</source>
        <translation>No está en blanco; cambie el disco</translation>
    </message>
    <message>
        <source>Disc space not enough for music</source>
        <translation>No hay espacio en el disco para la música</translation>
    </message>
    <message>
        <source>Ready to burn</source>
        <translation>Listo para grabar</translation>
    </message>
</context>
<context>
    <name>CDBurnWnd</name>
    <message>
        <source>Burn to Disc</source>
        <translation>Grabar en disco</translation>
    </message>
    <message>
        <source>&amp;Drive:</source>
        <translation>&amp;Unidad:</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Eject the disc</source>
        <translation>Expulsar el disco</translation>
    </message>
    <message>
        <source>Problem of the drive</source>
        <translation>Problema de la unidad</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>Pistas</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>&amp;Añadir archivos…</translation>
    </message>
    <message>
        <source>Items and size</source>
        <translation>Elementos y tamaño</translation>
    </message>
    <message>
        <source>Total time</source>
        <translation>Duración total</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>&amp;Eject when done</source>
        <translation>&amp;Expulsar al terminar</translation>
    </message>
    <message>
        <source>&amp;Burn</source>
        <translation>&amp;Grabar</translation>
    </message>
</context>
<context>
    <name>CDBurnWndController</name>
    <message>
        <source>There is nothing to burn.</source>
        <translation>No hay nada que grabar en el disco.</translation>
    </message>
    <message>
        <source>Tick the files that are to become tracks, then press Burn.</source>
        <translation>Marque los archivos que serán pistas y pulse «Grabar».</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>Duración: %1</translation>
    </message>
    <message>
        <source>Eject the disc</source>
        <translation>Expulsar el disco</translation>
    </message>
    <message>
        <source>There is no disc in the drive.</source>
        <translation>No hay ningún disco en la unidad.</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seleccionar</translation>
    </message>
    <message numerus="yes">
        <source> %n Items     Size: %1 MB</source>
        <translation>
            <numerusform> %n elemento     Tamaño: %1 MB</numerusform>
            <numerusform> %n elementos     Tamaño: %1 MB</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CaptureComputerAudio</name>
    <message>
        <source>%1: the driver does not run on this machine</source>
        <translation>%1: el controlador no funciona en este equipo</translation>
    </message>
    <message>
        <source>%1: no such program</source>
        <translation>%1: no existe ese programa</translation>
    </message>
    <message>
        <source>the driver was started, but its device did not appear</source>
        <translation>el controlador se inició, pero su dispositivo no apareció</translation>
    </message>
    <message>
        <source>the system audio device is being installed or removed already</source>
        <translation>ya se está instalando o desinstalando el dispositivo de audio del sistema</translation>
    </message>
    <message>
        <source>there is no way to get administrator rights</source>
        <translation>no hay forma de obtener permisos de administrador</translation>
    </message>
    <message>
        <source>%1: the driver is missing from the program&apos;s resources</source>
        <translation>%1: el controlador falta en los recursos del programa</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>--%1: %2 is not a time in seconds</source>
        <translation>--%1: %2 no es un tiempo en segundos</translation>
    </message>
    <message>
        <source>--%1: %2 is not a whole number</source>
        <translation>--%1: %2 no es un número entero</translation>
    </message>
    <message>
        <source>there is no drive that writes discs (--image FILE writes a disc image)</source>
        <translation>no hay ninguna unidad que grabe discos (--image FILE escribe una imagen de disco)</translation>
    </message>
    <message>
        <source>%1: there is no such drive (&quot;sonaphex drives&quot; lists them)</source>
        <translation>%1: no existe esa unidad («sonaphex drives» las muestra)</translation>
    </message>
    <message>
        <source>%1: the drive is busy</source>
        <translation>%1: la unidad está ocupada</translation>
    </message>
    <message>
        <source>%1: there is no disc in the drive</source>
        <translation>%1: no hay ningún disco en la unidad</translation>
    </message>
    <message>
        <source>%1: the disc is not blank: erase it, or put another one in</source>
        <translation>%1: el disco no está en blanco: bórrelo o inserte otro</translation>
    </message>
    <message>
        <source>%1: the disc is not blank: put another one in</source>
        <translation>%1: el disco no está en blanco: inserte otro</translation>
    </message>
    <message>
        <source>%1: no burn can be made with this drive</source>
        <translation>%1: no se puede grabar ningún disco con esta unidad</translation>
    </message>
    <message>
        <source>%1; nothing was burned</source>
        <translation>%1; no se grabó nada en el disco</translation>
    </message>
    <message>
        <source>the burn failed</source>
        <translation>la grabación del disco falló</translation>
    </message>
    <message>
        <source>burn takes the files that become tracks</source>
        <translation>burn requiere los archivos que serán pistas</translation>
    </message>
    <message>
        <source>--image takes the name of a file</source>
        <translation>--image requiere el nombre de un archivo</translation>
    </message>
    <message>
        <source>--image and --drive exclude each other</source>
        <translation>--image y --drive se excluyen mutuamente</translation>
    </message>
    <message>
        <source>burn sound files as an audio CD, one track each, or write a disc image</source>
        <translation>graba archivos de sonido en un CD de audio, una pista por archivo, o escribe una imagen de disco</translation>
    </message>
    <message>
        <source>The drive, by its name or its path (&quot;sonaphex drives&quot; lists them).</source>
        <translation>La unidad, por su nombre o su ruta («sonaphex drives» las muestra).</translation>
    </message>
    <message>
        <source>the first drive</source>
        <translation>la primera unidad</translation>
    </message>
    <message>
        <source>Write FILE.cue and FILE.bin instead of a disc. Existing files are never replaced.</source>
        <translation>Escribe FILE.cue y FILE.bin en vez de un disco. Los archivos existentes nunca se reemplazan.</translation>
    </message>
    <message>
        <source>Eject the disc when it is done.</source>
        <translation>Expulsa el disco al terminar.</translation>
    </message>
    <message>
        <source>Burn two tracks and eject the disc.</source>
        <translation>Grabar dos pistas en un disco y expulsarlo.</translation>
    </message>
    <message>
        <source>Write concert.cue and concert.bin.</source>
        <translation>Escribir concert.cue y concert.bin.</translation>
    </message>
    <message>
        <source>%1 (default: %2)</source>
        <translation>%1 (predeterminado: %2)</translation>
    </message>
    <message>
        <source>usage: sonaphex %1</source>
        <translation>uso: sonaphex %1</translation>
    </message>
    <message>
        <source>options:</source>
        <translation>opciones:</translation>
    </message>
    <message>
        <source>examples:</source>
        <translation>ejemplos:</translation>
    </message>
    <message>
        <source>usage: sonaphex            open the window
       sonaphex FILE       open the window and trim an audio file
       sonaphex COMMAND    do one thing and end

commands:
</source>
        <translation>uso: sonaphex            abre la ventana
     sonaphex FILE       abre la ventana y recorta un archivo de audio
     sonaphex COMMAND    hace una sola cosa y termina

órdenes:
</translation>
    </message>
    <message>
        <source>
&quot;sonaphex COMMAND --help&quot; lists the options of a command, &quot;sonaphex --version&quot; the version.
</source>
        <translation>
«sonaphex COMMAND --help» muestra las opciones de una orden; «sonaphex --version», la versión.
</translation>
    </message>
    <message>
        <source>there is no sound server</source>
        <translation>no hay ningún servidor de sonido</translation>
    </message>
    <message>
        <source>standard output could not be written: %1</source>
        <translation>no se pudo escribir en la salida estándar: %1</translation>
    </message>
    <message>
        <source>idle</source>
        <comment>no recording</comment>
        <translation>inactivo</translation>
    </message>
    <message>
        <source>armed</source>
        <comment>waits for the first sound</comment>
        <translation>a la espera</translation>
    </message>
    <message>
        <source>recording</source>
        <comment>now</comment>
        <translation>grabando</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>en pausa</translation>
    </message>
    <message>
        <source>control takes a command</source>
        <translation>control requiere una orden</translation>
    </message>
    <message>
        <source>%1: no such command</source>
        <translation>%1: no existe esa orden</translation>
    </message>
    <message>
        <source>the program is not running</source>
        <translation>el programa no está en ejecución</translation>
    </message>
    <message>
        <source>act on the running program</source>
        <translation>actúa sobre el programa en ejecución</translation>
    </message>
    <message>
        <source>Start a recording in the open window, or stop it.</source>
        <translation>Iniciar una grabación en la ventana abierta, o detenerla.</translation>
    </message>
    <message>
        <source>Print the state of the running program for a script.</source>
        <translation>Mostrar el estado del programa en ejecución para un script.</translation>
    </message>
    <message>
        <source>stopped before the end: nothing was written</source>
        <translation>se detuvo antes del final: no se escribió nada</translation>
    </message>
    <message>
        <source>%1 cannot be converted</source>
        <translation>no se puede convertir %1</translation>
    </message>
    <message>
        <source>%1: it ends at second %2, there is nothing from second %3 on</source>
        <translation>%1: termina en el segundo %2, no hay nada a partir del segundo %3</translation>
    </message>
    <message>
        <source>the source is damaged, what could be read was converted: %1</source>
        <translation>el origen está dañado, se convirtió lo que se pudo leer: %1</translation>
    </message>
    <message>
        <source>convert takes a source and a target</source>
        <translation>convert requiere un origen y un destino</translation>
    </message>
    <message>
        <source>--type is wav, m4a or caf</source>
        <translation>--type debe ser wav, m4a o caf</translation>
    </message>
    <message>
        <source>--to is a tenth of a second or more</source>
        <translation>--to debe ser una décima de segundo o más</translation>
    </message>
    <message>
        <source>--to is before --from</source>
        <translation>--to está antes que --from</translation>
    </message>
    <message>
        <source>copy a range of an audio file into a new file</source>
        <translation>copia un intervalo de un archivo de audio en un archivo nuevo</translation>
    </message>
    <message>
        <source>The type of the new file.</source>
        <translation>El tipo del archivo nuevo.</translation>
    </message>
    <message>
        <source>from the ending of DST</source>
        <translation>según la extensión de DST</translation>
    </message>
    <message>
        <source>Begin at second S of the source.</source>
        <translation>Empieza en el segundo S del origen.</translation>
    </message>
    <message>
        <source>End at second S of the source.</source>
        <translation>Termina en el segundo S del origen.</translation>
    </message>
    <message>
        <source>its end</source>
        <translation>su final</translation>
    </message>
    <message>
        <source>Fade in over S seconds; a fade shorter than one second is left out.</source>
        <translation>Fundido inicial de S segundos; si dura menos de un segundo, se omite.</translation>
    </message>
    <message>
        <source>Fade out over S seconds; a fade shorter than one second is left out.</source>
        <translation>Fundido final de S segundos; si dura menos de un segundo, se omite.</translation>
    </message>
    <message>
        <source>Repeat the range until the new file is S seconds long.</source>
        <translation>Repite el intervalo hasta que el archivo nuevo dure S segundos.</translation>
    </message>
    <message>
        <source>the length of the range</source>
        <translation>la duración del intervalo</translation>
    </message>
    <message>
        <source>Replace DST when it exists.</source>
        <translation>Reemplaza DST si existe.</translation>
    </message>
    <message>
        <source>Copy ten and a half seconds into a WAVE file.</source>
        <translation>Copiar diez segundos y medio en un archivo WAVE.</translation>
    </message>
    <message>
        <source>Repeat ten seconds for half a minute, with fades.</source>
        <translation>Repetir diez segundos durante medio minuto, con fundidos.</translation>
    </message>
    <message>
        <source>devices takes no names</source>
        <translation>devices no admite nombres</translation>
    </message>
    <message>
        <source>1 channel</source>
        <translation>1 canal</translation>
    </message>
    <message numerus="yes">
        <source>%n channels</source>
        <translation>
            <numerusform>%n canal</numerusform>
            <numerusform>%n canales</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 Hz, what the computer plays</source>
        <translation>%1, %2 Hz, lo que reproduce el equipo</translation>
    </message>
    <message>
        <source>%1, %2 Hz</source>
        <translation>%1, %2 Hz</translation>
    </message>
    <message>
        <source>no input devices</source>
        <translation>no hay dispositivos de entrada</translation>
    </message>
    <message>
        <source>default output: %1</source>
        <translation>salida predeterminada: %1</translation>
    </message>
    <message>
        <source>none</source>
        <comment>output device</comment>
        <translation>ninguna</translation>
    </message>
    <message>
        <source>list the input devices</source>
        <translation>muestra los dispositivos de entrada</translation>
    </message>
    <message>
        <source>List the devices for a script.</source>
        <translation>Mostrar los dispositivos para un script.</translation>
    </message>
    <message>
        <source>installed: %1</source>
        <translation>instalado: %1</translation>
    </message>
    <message>
        <source>installed: no</source>
        <translation>instalado: no</translation>
    </message>
    <message>
        <source>loaded: %1</source>
        <translation>cargado: %1</translation>
    </message>
    <message>
        <source>loaded: no</source>
        <translation>cargado: no</translation>
    </message>
    <message>
        <source>loaded: no (no sound server answers)</source>
        <translation>cargado: no (no responde ningún servidor de sonido)</translation>
    </message>
    <message>
        <source>the driver stays as it is while the window records: stop the recording first</source>
        <translation>el controlador se queda como está mientras la ventana graba: detenga antes la grabación</translation>
    </message>
    <message>
        <source>the driver cannot be loaded: no sound server answers</source>
        <translation>no se puede cargar el controlador: no responde ningún servidor de sonido</translation>
    </message>
    <message>
        <source>the driver was not installed: %1</source>
        <translation>no se instaló el controlador: %1</translation>
    </message>
    <message>
        <source>the driver was not removed: %1</source>
        <translation>no se desinstaló el controlador: %1</translation>
    </message>
    <message>
        <source>driver takes one of status, install, remove</source>
        <translation>driver requiere status, install o remove</translation>
    </message>
    <message>
        <source>show, install or remove the device that carries what the computer plays</source>
        <translation>muestra, instala o desinstala el dispositivo que transporta lo que reproduce el equipo</translation>
    </message>
    <message>
        <source>Install the device and load it. Asks for the administrator&apos;s password.</source>
        <translation>Instalar el dispositivo y cargarlo. Pide la contraseña del administrador.</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>ocupada</translation>
    </message>
    <message>
        <source>the drive is not ready yet</source>
        <translation>la unidad aún no está lista</translation>
    </message>
    <message>
        <source>no disc</source>
        <translation>no hay disco</translation>
    </message>
    <message>
        <source>disc</source>
        <comment>of unknown kind</comment>
        <translation>disco</translation>
    </message>
    <message>
        <source>%1, not blank, can be erased</source>
        <translation>%1, no está en blanco, se puede borrar</translation>
    </message>
    <message>
        <source>%1, not blank</source>
        <translation>%1, no está en blanco</translation>
    </message>
    <message>
        <source>%1, blank, %2 min %3 s of audio</source>
        <translation>%1, en blanco, %2 min %3 s de audio</translation>
    </message>
    <message>
        <source>drives takes no names</source>
        <translation>drives no admite nombres</translation>
    </message>
    <message>
        <source>list the drives that write discs, and what is in them</source>
        <translation>muestra las unidades que graban discos y lo que contienen</translation>
    </message>
    <message>
        <source>List the drives for a script.</source>
        <translation>Mostrar las unidades para un script.</translation>
    </message>
    <message>
        <source>there is no input device &quot;%1&quot;: there is none at all</source>
        <translation>no existe el dispositivo de entrada «%1»: no hay ninguno</translation>
    </message>
    <message>
        <source>there is no input device &quot;%1&quot;: there are %2</source>
        <translation>no existe el dispositivo de entrada «%1»: hay %2</translation>
    </message>
    <message>
        <source>join takes two files or more</source>
        <translation>join requiere dos archivos o más</translation>
    </message>
    <message>
        <source>join needs --to with the file to write</source>
        <translation>join necesita --to con el archivo que se va a escribir</translation>
    </message>
    <message>
        <source>%1: there is no such file</source>
        <translation>%1: no existe ese archivo</translation>
    </message>
    <message>
        <source>%1: there is no such folder</source>
        <translation>%1: no existe esa carpeta</translation>
    </message>
    <message>
        <source>make one recording of several, in the given order</source>
        <translation>crea una sola grabación a partir de varias, en el orden indicado</translation>
    </message>
    <message>
        <source>The recording to write. An existing file is kept.</source>
        <translation>La grabación que se escribe. Un archivo existente se conserva.</translation>
    </message>
    <message>
        <source>Join two parts of one recording without encoding them again. Other files are decoded and encoded.</source>
        <translation>Unir dos partes de una grabación sin volver a codificarlas. Otros archivos se decodifican y se codifican.</translation>
    </message>
    <message>
        <source>%1, but the running program does not know this request: it is another version</source>
        <translation>%1, pero el programa en ejecución no conoce esta petición: es de otra versión</translation>
    </message>
    <message>
        <source>%1, but the library could not be saved</source>
        <translation>%1, pero no se pudo guardar la biblioteca</translation>
    </message>
    <message>
        <source>%1 could not be added to the library</source>
        <translation>no se pudo añadir %1 a la biblioteca</translation>
    </message>
    <message>
        <source>file</source>
        <comment>the path of a recording</comment>
        <translation>archivo</translation>
    </message>
    <message>
        <source>key</source>
        <comment>names an entry of the library</comment>
        <translation>clave</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1 (falta)</translation>
    </message>
    <message>
        <source>recordings</source>
        <translation>grabaciones</translation>
    </message>
    <message>
        <source>ringtones</source>
        <translation>tonos</translation>
    </message>
    <message>
        <source>the running program does not know this request: it is another version</source>
        <translation>el programa en ejecución no conoce esta petición: es de otra versión</translation>
    </message>
    <message>
        <source>no entry has the key %1 (nothing was removed)</source>
        <translation>ningún elemento tiene la clave %1 (no se eliminó nada)</translation>
    </message>
    <message>
        <source>the files are deleted, but the library could not be saved</source>
        <translation>los archivos se han eliminado, pero no se pudo guardar la biblioteca</translation>
    </message>
    <message>
        <source>library knows list and remove, not %1</source>
        <translation>library conoce list y remove, no %1</translation>
    </message>
    <message>
        <source>library remove takes the keys of entries</source>
        <translation>library remove requiere las claves de los elementos</translation>
    </message>
    <message>
        <source>list recordings and ringtones, or remove some with their files</source>
        <translation>muestra las grabaciones y los tonos, o elimina algunos junto con sus archivos</translation>
    </message>
    <message>
        <source>List both collections with the key of each entry.</source>
        <translation>Mostrar ambas colecciones con la clave de cada elemento.</translation>
    </message>
    <message>
        <source>Remove an entry and delete its file.</source>
        <translation>Eliminar un elemento y borrar su archivo.</translation>
    </message>
    <message>
        <source>manual takes nothing</source>
        <translation>manual no admite argumentos</translation>
    </message>
    <message>
        <source>completions takes one of bash, zsh, fish</source>
        <translation>completions requiere bash, zsh o fish</translation>
    </message>
    <message>
        <source>print the manual page</source>
        <translation>muestra la página del manual</translation>
    </message>
    <message>
        <source>Read the manual page.</source>
        <translation>Leer la página del manual.</translation>
    </message>
    <message>
        <source>print the completions for a shell</source>
        <translation>muestra el autocompletado para un intérprete de órdenes</translation>
    </message>
    <message>
        <source>Install the completions for the current user&apos;s bash.</source>
        <translation>Instalar el autocompletado en el bash del usuario actual.</translation>
    </message>
    <message>
        <source>%1: is a folder</source>
        <translation>%1: es una carpeta</translation>
    </message>
    <message>
        <source>%1: no such folder</source>
        <translation>%1: no existe esa carpeta</translation>
    </message>
    <message>
        <source>%1: that path is not a regular file</source>
        <translation>%1: esa ruta no es un archivo normal</translation>
    </message>
    <message>
        <source>%1: exists already (--overwrite replaces it)</source>
        <translation>%1: ya existe (--overwrite lo reemplaza)</translation>
    </message>
    <message>
        <source>the folder %1 cannot be created</source>
        <translation>no se puede crear la carpeta %1</translation>
    </message>
    <message>
        <source>the folder %1 cannot be written: %2</source>
        <translation>no se puede escribir en la carpeta %1: %2</translation>
    </message>
    <message>
        <source>record takes options only</source>
        <translation>record solo admite opciones</translation>
    </message>
    <message>
        <source>--for takes a time above 0</source>
        <translation>--for requiere un tiempo mayor que 0</translation>
    </message>
    <message>
        <source>--pre-roll takes at most %1 milliseconds</source>
        <translation>--pre-roll admite como máximo %1 milisegundos</translation>
    </message>
    <message>
        <source>--folder takes a folder</source>
        <translation>--folder requiere una carpeta</translation>
    </message>
    <message>
        <source>without an input device and without --computer there is nothing to record</source>
        <translation>sin un dispositivo de entrada y sin --computer no hay nada que grabar</translation>
    </message>
    <message>
        <source>record an input device, what the computer plays, or both into .m4a files</source>
        <translation>graba un dispositivo de entrada, lo que reproduce el equipo, o ambos, en archivos .m4a</translation>
    </message>
    <message>
        <source>Record the input device with this name, UID or id; none records no input device.</source>
        <translation>Graba el dispositivo de entrada con este nombre, UID o id; con none no se graba ninguno.</translation>
    </message>
    <message>
        <source>the device and the choice stored in the preferences</source>
        <translation>el dispositivo y la elección guardados en las preferencias</translation>
    </message>
    <message>
        <source>Record what the computer plays.</source>
        <translation>Graba lo que reproduce el equipo.</translation>
    </message>
    <message>
        <source>Stop after S seconds of recorded sound, over all files.</source>
        <translation>Se detiene tras S segundos de sonido grabado, contando todos los archivos.</translation>
    </message>
    <message>
        <source>until Control+C</source>
        <translation>hasta Control+C</translation>
    </message>
    <message>
        <source>When waiting for the first sound, give up after S seconds.</source>
        <translation>Al esperar el primer sonido, abandona tras S segundos.</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>sin límite</translation>
    </message>
    <message>
        <source>Begin a new file after a silence of MS milliseconds of computer audio.</source>
        <translation>Empieza un archivo nuevo tras un silencio de MS milisegundos del audio del equipo.</translation>
    </message>
    <message>
        <source>as in the preferences</source>
        <translation>como en las preferencias</translation>
    </message>
    <message>
        <source>When waiting for the first sound, begin MS milliseconds before it, at most 5000.</source>
        <translation>Al esperar el primer sonido, empieza MS milisegundos antes, como máximo 5000.</translation>
    </message>
    <message>
        <source>Drop a recording shorter than S seconds.</source>
        <translation>Descarta las grabaciones de menos de S segundos.</translation>
    </message>
    <message>
        <source>Put the recordings into DIR, which is made when it is missing.</source>
        <translation>Guarda las grabaciones en DIR, que se crea si no existe.</translation>
    </message>
    <message>
        <source>Record ten seconds of the input device.</source>
        <translation>Grabar diez segundos del dispositivo de entrada.</translation>
    </message>
    <message>
        <source>Record a named device into the current folder until Control+C.</source>
        <translation>Grabar un dispositivo concreto en la carpeta actual hasta Control+C.</translation>
    </message>
    <message>
        <source>Record what the computer plays, one file for each song, and give up when nothing plays for a minute.</source>
        <translation>Grabar lo que reproduce el equipo, un archivo por canción, y abandonar si no suena nada durante un minuto.</translation>
    </message>
    <message>
        <source>a recording could not be finished</source>
        <translation>no se pudo finalizar una grabación</translation>
    </message>
    <message>
        <source>computer audio: its driver is not installed (see sonaphex driver install)</source>
        <translation>audio del equipo: su controlador no está instalado (véase sonaphex driver install)</translation>
    </message>
    <message>
        <source>there is no input device</source>
        <translation>no hay ningún dispositivo de entrada</translation>
    </message>
    <message>
        <source>there is no source to record: name one with --input or --computer</source>
        <translation>no hay ninguna fuente que grabar: indique una con --input o --computer</translation>
    </message>
    <message>
        <source>nothing can be recorded</source>
        <translation>no se puede grabar nada</translation>
    </message>
    <message>
        <source>waiting for the first sound</source>
        <translation>esperando el primer sonido</translation>
    </message>
    <message>
        <source>finishing</source>
        <translation>finalizando</translation>
    </message>
    <message>
        <source>no sound came: nothing was recorded</source>
        <translation>no hubo sonido: no se grabó nada</translation>
    </message>
    <message>
        <source>one recording was shorter than the filter&apos;s time and was not kept</source>
        <translation>una grabación duró menos que el tiempo del filtro y no se conservó</translation>
    </message>
    <message numerus="yes">
        <source>%n recordings were shorter than the filter&apos;s time and were not kept</source>
        <translation>
            <numerusform>%n grabación duró menos que el tiempo del filtro y no se conservó</numerusform>
            <numerusform>%n grabaciones duraron menos que el tiempo del filtro y no se conservaron</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: what was recorded is kept in %2</source>
        <translation>%1: lo grabado se conserva en %2</translation>
    </message>
    <message>
        <source>%1 is made, but the running program does not know this request: it is another version</source>
        <translation>%1 se ha creado, pero el programa en ejecución no conoce esta petición: es de otra versión</translation>
    </message>
    <message>
        <source>%1 is made, but the library could not be saved</source>
        <translation>%1 se ha creado, pero no se pudo guardar la biblioteca</translation>
    </message>
    <message>
        <source>%1: it ends at second %2, --to is %3</source>
        <translation>%1: termina en el segundo %2, --to es %3</translation>
    </message>
    <message>
        <source>stopped before the end: no ringtone was made</source>
        <translation>se detuvo antes del final: no se creó ningún tono</translation>
    </message>
    <message>
        <source>the source is damaged, the ringtone is silent where it could not be read: %1</source>
        <translation>el origen está dañado, el tono queda en silencio donde no se pudo leer: %1</translation>
    </message>
    <message>
        <source>ringtone takes one file</source>
        <translation>ringtone requiere un solo archivo</translation>
    </message>
    <message>
        <source>ringtone needs --from and --to</source>
        <translation>ringtone necesita --from y --to</translation>
    </message>
    <message>
        <source>--to is not after --from</source>
        <translation>--to no está después de --from</translation>
    </message>
    <message>
        <source>make a ringtone from a range of a recording and add it to the library</source>
        <translation>crea un tono de llamada a partir de un intervalo de una grabación y lo añade a la biblioteca</translation>
    </message>
    <message>
        <source>Begin at second S of the recording.</source>
        <translation>Empieza en el segundo S de la grabación.</translation>
    </message>
    <message>
        <source>End at second S of the recording.</source>
        <translation>Termina en el segundo S de la grabación.</translation>
    </message>
    <message>
        <source>Make a ringtone of this half minute.</source>
        <translation>Crear un tono con este medio minuto.</translation>
    </message>
    <message>
        <source>longest silence found: %1 s</source>
        <translation>silencio más largo encontrado: %1 s</translation>
    </message>
    <message>
        <source>%1: no silence of %2 s; the longest one has %3 s</source>
        <translation>%1: no hay ningún silencio de %2 s; el más largo dura %3 s</translation>
    </message>
    <message>
        <source>split takes one file</source>
        <translation>split requiere un solo archivo</translation>
    </message>
    <message>
        <source>split needs --silence with at least %1 milliseconds</source>
        <translation>split necesita --silence con %1 milisegundos como mínimo</translation>
    </message>
    <message>
        <source>--level takes decibels from -120 to below 0</source>
        <translation>--level admite decibelios desde -120 hasta menos de 0</translation>
    </message>
    <message>
        <source>cut a recording into several at its silences, without encoding it again</source>
        <translation>corta una grabación en varias por sus silencios, sin volver a codificarla</translation>
    </message>
    <message>
        <source>Cut in the middle of each silence of at least MS milliseconds, 50 or more.</source>
        <translation>Corta en la mitad de cada silencio de al menos MS milisegundos, 50 o más.</translation>
    </message>
    <message>
        <source>A silence lies below DB decibels of full scale, from -120 to below 0.</source>
        <translation>Un silencio está por debajo de DB decibelios respecto al fondo de escala, desde -120 hasta menos de 0.</translation>
    </message>
    <message>
        <source>Put the parts into DIR.</source>
        <translation>Guarda las partes en DIR.</translation>
    </message>
    <message>
        <source>the folder of the recording</source>
        <translation>la carpeta de la grabación</translation>
    </message>
    <message>
        <source>Only list the cuts and the longest silence; write nothing.</source>
        <translation>Solo muestra los cortes y el silencio más largo; no escribe nada.</translation>
    </message>
    <message>
        <source>Make a 1.m4a, a 2.m4a and so on beside a.m4a, which stays as it is.</source>
        <translation>Crear «a 1.m4a», «a 2.m4a», etc. junto a a.m4a, que se queda como está.</translation>
    </message>
    <message>
        <source>See where the cuts would be.</source>
        <translation>Ver dónde estarían los cortes.</translation>
    </message>
    <message>
        <source>Print one JSON document instead of text.</source>
        <translation>Muestra un único documento JSON en vez de texto.</translation>
    </message>
    <message>
        <source>none</source>
        <comment>cover</comment>
        <translation>ninguna</translation>
    </message>
    <message>
        <source>title:</source>
        <translation>título:</translation>
    </message>
    <message>
        <source>artist:</source>
        <translation>artista:</translation>
    </message>
    <message>
        <source>album:</source>
        <translation>álbum:</translation>
    </message>
    <message>
        <source>year:</source>
        <translation>año:</translation>
    </message>
    <message>
        <source>genre:</source>
        <translation>género:</translation>
    </message>
    <message>
        <source>artwork:</source>
        <translation>carátula:</translation>
    </message>
    <message>
        <source>the artwork of %1 could not be written</source>
        <translation>no se pudo escribir la carátula de %1</translation>
    </message>
    <message>
        <source>tag takes one file</source>
        <translation>tag requiere un solo archivo</translation>
    </message>
    <message>
        <source>--year: %1 is not a number</source>
        <translation>--year: %1 no es un número</translation>
    </message>
    <message>
        <source>the file is changed</source>
        <translation>el archivo se ha modificado</translation>
    </message>
    <message>
        <source>print or write the tags and the cover of an MPEG-4 audio file</source>
        <translation>muestra o escribe las etiquetas y la carátula de un archivo de audio MPEG-4</translation>
    </message>
    <message>
        <source>Write this title. An empty text removes the tag; the same holds for the other texts.</source>
        <translation>Escribe este título. Un texto vacío quita la etiqueta; lo mismo vale para los demás textos.</translation>
    </message>
    <message>
        <source>Write this artist.</source>
        <translation>Escribe este artista.</translation>
    </message>
    <message>
        <source>Write this album.</source>
        <translation>Escribe este álbum.</translation>
    </message>
    <message>
        <source>Write this year; 0 removes the tag.</source>
        <translation>Escribe este año; 0 quita la etiqueta.</translation>
    </message>
    <message>
        <source>Write this genre.</source>
        <translation>Escribe este género.</translation>
    </message>
    <message>
        <source>Take the cover from this picture file.</source>
        <translation>Toma la carátula de este archivo de imagen.</translation>
    </message>
    <message>
        <source>Rename the file after its title, unless the name is taken or not possible.</source>
        <translation>Cambia el nombre del archivo por su título, salvo que ese nombre esté ocupado o no sea posible.</translation>
    </message>
    <message>
        <source>Print the tags.</source>
        <translation>Mostrar las etiquetas.</translation>
    </message>
    <message>
        <source>Write a title and a cover.</source>
        <translation>Escribir un título y una carátula.</translation>
    </message>
    <message>
        <source>Write a title and name the file Morning.m4a.</source>
        <translation>Escribir un título y dar al archivo el nombre Morning.m4a.</translation>
    </message>
    <message>
        <source>%1: This path exists, please change the path or name.</source>
        <translation>%1: Esta ruta ya existe; cambie la ruta o el nombre.</translation>
    </message>
    <message>
        <source>%1: the file is being played</source>
        <translation>%1: el archivo se está reproduciendo</translation>
    </message>
    <message>
        <source>the file is trimmed</source>
        <translation>el archivo se ha recortado</translation>
    </message>
    <message>
        <source>trim takes one file</source>
        <translation>trim requiere un solo archivo</translation>
    </message>
    <message>
        <source>trim takes --from, --to or both</source>
        <translation>trim requiere --from, --to o ambos</translation>
    </message>
    <message>
        <source>--to must be at least a tenth of a second after --from</source>
        <translation>--to debe estar al menos una décima de segundo después de --from</translation>
    </message>
    <message>
        <source>--save-as names no file</source>
        <translation>--save-as no indica ningún archivo</translation>
    </message>
    <message>
        <source>cut a recording down to a range, in its place or into a new file</source>
        <translation>recorta una grabación a un intervalo, en su lugar o en un archivo nuevo</translation>
    </message>
    <message>
        <source>Write a new file and leave the recording as it is. An existing file is kept.</source>
        <translation>Escribe un archivo nuevo y deja la grabación como está. Un archivo existente se conserva.</translation>
    </message>
    <message>
        <source>the recording is replaced</source>
        <translation>se reemplaza la grabación</translation>
    </message>
    <message>
        <source>Cut off the first two and a half seconds and all after a minute.</source>
        <translation>Quitar los dos segundos y medio primeros y todo lo que pase del minuto.</translation>
    </message>
    <message>
        <source>Copy ten seconds into a new recording.</source>
        <translation>Copiar diez segundos en una grabación nueva.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n values are too few for a picture</source>
        <translation>
            <numerusform>%1: %n valor es demasiado poco para una imagen</numerusform>
            <numerusform>%1: %n valores son demasiado pocos para una imagen</numerusform>
        </translation>
    </message>
    <message>
        <source>waveform takes one file</source>
        <translation>waveform requiere un solo archivo</translation>
    </message>
    <message>
        <source>stopped before the end</source>
        <translation>se detuvo antes del final</translation>
    </message>
    <message>
        <source>the file is damaged, what could be read is shown: %1</source>
        <translation>el archivo está dañado, se muestra lo que se pudo leer: %1</translation>
    </message>
    <message>
        <source>print ten values of a file&apos;s outline for each second</source>
        <translation>muestra diez valores de la forma de onda de un archivo por cada segundo</translation>
    </message>
    <message>
        <source>Draw the outline into a PNG file instead of printing it.</source>
        <translation>Dibuja la forma de onda en un archivo PNG en vez de mostrarla.</translation>
    </message>
    <message>
        <source>Replace FILE when it exists.</source>
        <translation>Reemplaza FILE si existe.</translation>
    </message>
    <message>
        <source>Draw the outline of a recording.</source>
        <translation>Dibujar la forma de onda de una grabación.</translation>
    </message>
    <message>
        <source>%1: no such command and no such file (see sonaphex help)</source>
        <translation>%1: no existe esa orden ni ese archivo (véase sonaphex help)</translation>
    </message>
    <message>
        <source>burning</source>
        <translation>grabando el disco</translation>
    </message>
    <message>
        <source>%1, %2 being finished</source>
        <translation>%1, %2 por finalizar</translation>
    </message>
    <message>
        <source>%1, %2 bytes</source>
        <translation>%1, %2 bytes</translation>
    </message>
    <message>
        <source>disc image</source>
        <translation>imagen de disco</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a list of the library and how many are in it</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>--app and --not-app exclude each other</source>
        <translation>--app y --not-app se excluyen</translation>
    </message>
    <message>
        <source>--%1 takes the name of a program</source>
        <translation>--%1 necesita el nombre de un programa</translation>
    </message>
    <message>
        <source>Of computer audio, record only this program; may be given several times.</source>
        <translation>Del audio del equipo, grabar solo este programa; se puede repetir.</translation>
    </message>
    <message>
        <source>with --computer everything, else as in the preferences</source>
        <translation>con --computer todo, si no, como en las preferencias</translation>
    </message>
    <message>
        <source>Of computer audio, record everything but this program; may be given several times.</source>
        <translation>Del audio del equipo, grabar todo menos este programa; se puede repetir.</translation>
    </message>
    <message>
        <source>Record one program, whatever else plays.</source>
        <translation>Grabar un programa, suene lo que suene además.</translation>
    </message>
    <message>
        <source>Of computer audio, give each file the title, artist, album and cover that the media player names.</source>
        <translation>Con el audio del equipo, da a cada archivo el título, el artista, el álbum y la carátula que indica el reproductor multimedia.</translation>
    </message>
    <message>
        <source>Of computer audio, begin a new file when the media player goes on to another track.</source>
        <translation>Con el audio del equipo, empieza un archivo nuevo cuando el reproductor multimedia pasa a otra pista.</translation>
    </message>
    <message>
        <source>Record an album without pauses, one file with its title for each track.</source>
        <translation>Grabar un álbum sin pausas, un archivo con su título por cada pista.</translation>
    </message>
    <message>
        <source>%1: no tracks were kept of this recording</source>
        <translation>%1: no se conservaron las pistas de esta grabación</translation>
    </message>
    <message>
        <source>both gains were lowered by %1 dB, so that nothing is clipped</source>
        <translation>ambas ganancias se bajaron %1 dB para que nada se sature</translation>
    </message>
    <message>
        <source>the new mix is saved</source>
        <translation>la mezcla nueva se ha guardado</translation>
    </message>
    <message>
        <source>--%1: %2 is not a number</source>
        <translation>--%1: %2 no es un número</translation>
    </message>
    <message>
        <source>balance takes one file</source>
        <translation>balance requiere un solo archivo</translation>
    </message>
    <message>
        <source>gains are -60 to 20 decibels, and the delay -2000 to 2000 milliseconds</source>
        <translation>las ganancias van de -60 a 20 decibelios, y el retardo, de -2000 a 2000 milisegundos</translation>
    </message>
    <message>
        <source>--to names no file</source>
        <translation>--to no indica ningún archivo</translation>
    </message>
    <message>
        <source>mix the kept tracks of a recording anew, in its place or into a new file</source>
        <translation>vuelve a mezclar las pistas conservadas de una grabación, en su lugar o en un archivo nuevo</translation>
    </message>
    <message>
        <source>Make the input louder by DB decibels, or softer when it is negative; -60 is silence.</source>
        <translation>Sube la entrada DB decibelios, o la baja si el valor es negativo; -60 es silencio.</translation>
    </message>
    <message>
        <source>Make computer audio louder by DB decibels, or softer when it is negative; -60 is silence.</source>
        <translation>Sube el audio del equipo DB decibelios, o lo baja si el valor es negativo; -60 es silencio.</translation>
    </message>
    <message>
        <source>Move computer audio MS milliseconds later, or earlier when it is negative; at most 2000.</source>
        <translation>Retrasa el audio del equipo MS milisegundos, o lo adelanta si el valor es negativo; como máximo 2000.</translation>
    </message>
    <message>
        <source>Make the microphone louder against what the computer played.</source>
        <translation>Subir el micrófono respecto a lo que reprodujo el equipo.</translation>
    </message>
    <message>
        <source>Move computer audio 120 milliseconds later, in a new file.</source>
        <translation>Retrasar el audio del equipo 120 milisegundos, en un archivo nuevo.</translation>
    </message>
    <message>
        <source>Of a recording of both sources, also keep the input and computer audio, each as a file of its own beside the mix.</source>
        <translation>En una grabación de ambas fuentes, conserva también la entrada y el audio del equipo, cada uno en su propio archivo junto a la mezcla.</translation>
    </message>
</context>
<context>
    <name>Control</name>
    <message>
        <source>%1: no such folder</source>
        <translation>%1: no existe esa carpeta</translation>
    </message>
    <message>
        <source>%1: no such file</source>
        <translation>%1: no existe ese archivo</translation>
    </message>
    <message>
        <source>%1: the folder cannot be created</source>
        <translation>%1: no se puede crear la carpeta</translation>
    </message>
    <message>
        <source>the file or its tags could not be written</source>
        <translation>no se pudo escribir el archivo o sus etiquetas</translation>
    </message>
    <message>
        <source>This path exists, please change the path or name.</source>
        <translation>Esta ruta ya existe; cambie la ruta o el nombre.</translation>
    </message>
    <message>
        <source>stopped before the end</source>
        <translation>se detuvo antes del final</translation>
    </message>
    <message>
        <source>a part of it is damaged and cannot be measured</source>
        <translation>una parte está dañada y no se puede medir</translation>
    </message>
    <message>
        <source>%1 joined</source>
        <translation>%1 unida</translation>
    </message>
</context>
<context>
    <name>ControlRequests</name>
    <message>
        <source>the program is ending</source>
        <translation>el programa está terminando</translation>
    </message>
    <message>
        <source>there is no source to record</source>
        <translation>no hay ninguna fuente que grabar</translation>
    </message>
    <message>
        <source>nothing is being recorded</source>
        <translation>no se está grabando nada</translation>
    </message>
    <message>
        <source>unknown request</source>
        <translation>petición desconocida</translation>
    </message>
    <message>
        <source>there is no path</source>
        <translation>no hay ninguna ruta</translation>
    </message>
</context>
<context>
    <name>ConvertingTipView</name>
    <message>
        <source>Converting notice</source>
        <translation>Aviso de conversión</translation>
    </message>
    <message>
        <source>The recording is converted.</source>
        <translation>La grabación está convertida.</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>the password prompt was cancelled</source>
        <translation>se canceló la petición de contraseña</translation>
    </message>
    <message>
        <source>pkexec is not installed: administrator rights cannot be requested</source>
        <translation>pkexec no está instalado: no se pueden solicitar permisos de administrador</translation>
    </message>
    <message>
        <source>administrator rights were not given</source>
        <translation>no se concedieron permisos de administrador</translation>
    </message>
    <message>
        <source>the command ended with status %1</source>
        <translation>la orden terminó con el estado %1</translation>
    </message>
</context>
<context>
    <name>DesktopMain</name>
    <message>
        <source>%1 was not opened: the running program does not answer</source>
        <translation>no se abrió %1: el programa en ejecución no responde</translation>
    </message>
    <message>
        <source>it is already running, but does not answer</source>
        <translation>ya está en ejecución, pero no responde</translation>
    </message>
    <message>
        <source>Nothing can be recorded or played.</source>
        <translation>No se puede grabar ni reproducir nada.</translation>
    </message>
    <message>
        <source>Sonaphex cannot start.</source>
        <translation>Sonaphex no se puede iniciar.</translation>
    </message>
</context>
<context>
    <name>Disc</name>
    <message>
        <source>%1: its rate cannot be converted</source>
        <translation>%1: no se puede convertir su frecuencia de muestreo</translation>
    </message>
    <message>
        <source>%1: contains no audio</source>
        <translation>%1: no contiene audio</translation>
    </message>
    <message>
        <source>%1: no such folder</source>
        <translation>%1: no existe esa carpeta</translation>
    </message>
    <message>
        <source>%1: exists already, and an image replaces no file; choose another name</source>
        <translation>%1: ya existe, y una imagen no reemplaza ningún archivo; elija otro nombre</translation>
    </message>
    <message>
        <source>%1: a cue sheet cannot name a file with quotation marks or line ends; choose another name</source>
        <translation>%1: una hoja CUE no puede nombrar un archivo con comillas o saltos de línea; elija otro nombre</translation>
    </message>
    <message>
        <source>a file cannot be read: nothing was burned</source>
        <translation>no se puede leer un archivo: no se grabó nada en el disco</translation>
    </message>
    <message>
        <source>there is nothing to burn: no file is ticked</source>
        <translation>no hay nada que grabar en el disco: ningún archivo está marcado</translation>
    </message>
    <message>
        <source>an audio CD holds at most %1 tracks, these are %2</source>
        <translation>un CD de audio admite como máximo %1 pistas y estas son %2</translation>
    </message>
    <message>
        <source>Write Disc Image</source>
        <translation>Escribir imagen de disco</translation>
    </message>
    <message>
        <source>The image cannot be written there.</source>
        <translation>No se puede escribir la imagen ahí.</translation>
    </message>
    <message>
        <source>no path was given for the disc image</source>
        <translation>no se indicó ninguna ruta para la imagen de disco</translation>
    </message>
    <message>
        <source>%1: the disk is full: the image needs %2, %3 are free</source>
        <translation>%1: el disco está lleno: la imagen necesita %2 y quedan libres %3</translation>
    </message>
    <message>
        <source>%1: cannot be written: %2</source>
        <translation>%1: no se puede escribir: %2</translation>
    </message>
    <message>
        <source>%1: cannot be read</source>
        <translation>%1: no se puede leer</translation>
    </message>
    <message>
        <source>%1: is not an audio file</source>
        <translation>%1: no es un archivo de audio</translation>
    </message>
    <message>
        <source>it was stopped before the end: nothing was written</source>
        <translation>se detuvo antes del final: no se escribió nada</translation>
    </message>
    <message>
        <source>the drive cannot be opened</source>
        <translation>no se puede abrir la unidad</translation>
    </message>
    <message>
        <source>%1: there is no disc in the drive</source>
        <translation>%1: no hay ningún disco en la unidad</translation>
    </message>
    <message>
        <source>%1: the disc is not blank</source>
        <translation>%1: el disco no está en blanco</translation>
    </message>
    <message>
        <source>%1: the drive does not get ready</source>
        <translation>%1: la unidad no llega a estar lista</translation>
    </message>
    <message>
        <source>%1: this disc cannot be written to</source>
        <translation>%1: no se puede escribir en este disco</translation>
    </message>
    <message>
        <source>the disc cannot be written like this: %1</source>
        <translation>el disco no se puede grabar así: %1</translation>
    </message>
    <message>
        <source>the drive gave no reason</source>
        <translation>la unidad no indicó el motivo</translation>
    </message>
    <message>
        <source>it was stopped before the end: the disc may be unusable</source>
        <translation>se detuvo antes del final: el disco puede haber quedado inservible</translation>
    </message>
    <message>
        <source>it was stopped before the first sector: the disc is as it was</source>
        <translation>se detuvo antes del primer sector: el disco está como estaba</translation>
    </message>
    <message>
        <source>%1: an audio CD needs a CD-R or a CD-RW, this is a %2</source>
        <translation>%1: un CD de audio necesita un CD-R o un CD-RW, y este es un %2</translation>
    </message>
    <message>
        <source>disc of another kind</source>
        <translation>disco de otro tipo</translation>
    </message>
    <message>
        <source>the layout of the disc could not be made</source>
        <translation>no se pudo crear la estructura del disco</translation>
    </message>
    <message>
        <source>%1 (the disc is unusable)</source>
        <translation>%1 (el disco ha quedado inservible)</translation>
    </message>
    <message>
        <source>%1: the burn failed: %2</source>
        <translation>%1: la grabación del disco falló: %2</translation>
    </message>
    <message>
        <source>%1: this disc cannot be erased</source>
        <translation>%1: este disco no se puede borrar</translation>
    </message>
    <message>
        <source>%1: the erase failed: %2</source>
        <translation>%1: el borrado falló: %2</translation>
    </message>
    <message>
        <source>no right to use %1: join the group that owns it (often &quot;cdrom&quot;) and log in again</source>
        <translation>sin permiso para usar %1: añádase al grupo propietario (a menudo «cdrom») e inicie sesión de nuevo</translation>
    </message>
    <message>
        <source>another program uses the drive, or its disc is mounted</source>
        <translation>otro programa usa la unidad, o su disco está montado</translation>
    </message>
    <message>
        <source>the drive is gone</source>
        <translation>la unidad ya no está disponible</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>no se puede abrir %1: %2</translation>
    </message>
    <message>
        <source>%1: no such file</source>
        <translation>%1: no existe ese archivo</translation>
    </message>
    <message>
        <source>%1: is not a file</source>
        <translation>%1: no es un archivo</translation>
    </message>
    <message>
        <source>%1: no right to read it</source>
        <translation>%1: sin permiso para leerlo</translation>
    </message>
    <message>
        <source>%1: is empty</source>
        <translation>%1: está vacío</translation>
    </message>
    <message>
        <source>%1: the file ends earlier than when it was measured</source>
        <translation>%1: el archivo termina antes que cuando se midió</translation>
    </message>
    <message>
        <source>there is not enough room on the disc: the tracks need %1 minutes (%2 sectors), %3 minutes (%4 sectors) are free</source>
        <translation>no hay espacio suficiente en el disco: las pistas necesitan %1 minutos (%2 sectores) y quedan libres %3 minutos (%4 sectores)</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
</context>
<context>
    <name>EditWindows</name>
    <message>
        <source>%1 cannot be opened: close the open dialog first.</source>
        <translation>No se puede abrir %1: cierre antes el diálogo abierto.</translation>
    </message>
    <message>
        <source>The tracks cannot be mixed.</source>
        <translation>No se pueden mezclar las pistas.</translation>
    </message>
</context>
<context>
    <name>FilteredAudioModel</name>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
</context>
<context>
    <name>Foundation</name>
    <message>
        <source>%1: another program is using it</source>
        <translation>%1: otro programa lo está usando</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>%1 is a link</source>
        <translation>%1 es un enlace</translation>
    </message>
    <message>
        <source>%1 is no folder</source>
        <translation>%1 no es una carpeta</translation>
    </message>
    <message>
        <source>%1 belongs to another user</source>
        <translation>%1 pertenece a otro usuario</translation>
    </message>
    <message>
        <source>%1 is open to others</source>
        <translation>%1 es accesible para otros usuarios</translation>
    </message>
    <message>
        <source>a part of the program is missing: %1</source>
        <translation>falta una parte del programa: %1</translation>
    </message>
    <message>
        <source>%1 is already answered</source>
        <translation>%1 ya lo atiende otro proceso</translation>
    </message>
    <message>
        <source>%1 is not a socket of this user</source>
        <translation>%1 no es un socket de este usuario</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the items of a list</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>is a link</source>
        <translation>es un enlace</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>belongs to another user</source>
        <translation>pertenece a otro usuario</translation>
    </message>
    <message>
        <source>is larger than %1</source>
        <translation>ocupa más de %1</translation>
    </message>
</context>
<context>
    <name>HelpPages</name>
    <message>
        <source>Sonaphex support</source>
        <translation>Soporte de Sonaphex</translation>
    </message>
    <message>
        <source>Nothing is recorded</source>
        <translation>No se graba nada</translation>
    </message>
    <message>
        <source>Look whether a source is chosen in the main window: an input device, the computer&apos;s audio, or both. In a terminal, &lt;code&gt;sonaphex devices&lt;/code&gt; lists the input devices that the sound server offers.</source>
        <translation>Compruebe si hay una fuente elegida en la ventana principal: un dispositivo de entrada, el audio del equipo o ambos. En un terminal, &lt;code&gt;sonaphex devices&lt;/code&gt; muestra los dispositivos de entrada que ofrece el servidor de sonido.</translation>
    </message>
    <message>
        <source>A recording of the computer&apos;s audio alone begins with the first sound that the computer plays.</source>
        <translation>Una grabación solo del audio del equipo empieza con el primer sonido que reproduce el equipo.</translation>
    </message>
    <message>
        <source>A recording is missing</source>
        <translation>Falta una grabación</translation>
    </message>
    <message>
        <source>Recordings shorter than the time that is set in the preferences are dropped; switch the filter off to keep them. What could not be finished, for instance on a full disk, lies in &lt;code&gt;~/.local/share/com.korvane.Sonaphex/Unfinished&lt;/code&gt;.</source>
        <translation>Las grabaciones más cortas que el tiempo fijado en las preferencias se descartan; desactive el filtro para conservarlas. Lo que no se pudo finalizar, por ejemplo porque el disco estaba lleno, está en &lt;code&gt;~/.local/share/com.korvane.Sonaphex/Unfinished&lt;/code&gt;.</translation>
    </message>
    <message>
        <source>The computer&apos;s audio cannot be chosen</source>
        <translation>No se puede elegir el audio del equipo</translation>
    </message>
    <message>
        <source>It needs a small add-on: see &lt;a href=&quot;computer-audio.html&quot;&gt;recording the computer&apos;s audio&lt;/a&gt;.</source>
        <translation>Necesita un pequeño complemento: véase &lt;a href=&quot;computer-audio.html&quot;&gt;grabar el audio del equipo&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>The settings are gone</source>
        <translation>Los ajustes han desaparecido</translation>
    </message>
    <message>
        <source>They are in &lt;code&gt;~/.config/com.korvane.Sonaphex.plist&lt;/code&gt;. A damaged file is kept beside it under a name that ends in &lt;code&gt;.damaged-&lt;/code&gt; and the date.</source>
        <translation>Están en &lt;code&gt;~/.config/com.korvane.Sonaphex.plist&lt;/code&gt;. Un archivo dañado se conserva al lado con un nombre que termina en &lt;code&gt;.damaged-&lt;/code&gt; y la fecha.</translation>
    </message>
    <message>
        <source>Recording the computer&apos;s audio</source>
        <translation>Grabar el audio del equipo</translation>
    </message>
    <message>
        <source>The add-on is an input device named “Korvane System Audio” that hears what the default output plays. It is a small program of the user&apos;s session that speaks to the sound server; it changes nothing in what you hear, and it never becomes the default microphone of other programs.</source>
        <translation>El complemento es un dispositivo de entrada llamado «Korvane System Audio» que oye lo que reproduce la salida predeterminada. Es un pequeño programa de la sesión del usuario que se comunica con el servidor de sonido; no cambia nada de lo que usted oye y nunca se convierte en el micrófono predeterminado de otros programas.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message>
        <source>Choose Install in the preferences window, or run &lt;code&gt;sonaphex driver install&lt;/code&gt;. The password of an administrator is asked for once: the add-on is installed for all users of the computer.</source>
        <translation>Elija «Instalar» en la ventana de preferencias o ejecute &lt;code&gt;sonaphex driver install&lt;/code&gt;. Se pide una vez la contraseña de un administrador: el complemento se instala para todos los usuarios del equipo.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Desinstalar</translation>
    </message>
    <message>
        <source>Choose Remove in the same place, or run &lt;code&gt;sonaphex driver remove&lt;/code&gt;.</source>
        <translation>Elija «Desinstalar» en el mismo lugar o ejecute &lt;code&gt;sonaphex driver remove&lt;/code&gt;.</translation>
    </message>
</context>
<context>
    <name>ID3EditSave</name>
    <message>
        <source>The file “%1” is no longer there.</source>
        <translation>El archivo «%1» ya no está ahí.</translation>
    </message>
    <message>
        <source>The cover of “%1” could not be written.</source>
        <translation>No se pudo escribir la carátula de «%1».</translation>
    </message>
    <message>
        <source>The tags of “%1” could not be written.</source>
        <translation>No se pudieron escribir las etiquetas de «%1».</translation>
    </message>
    <message>
        <source>The tags of “%1” could not be written: %2</source>
        <translation>No se pudieron escribir las etiquetas de «%1»: %2</translation>
    </message>
</context>
<context>
    <name>ID3EditWnd</name>
    <message>
        <source>Tags</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Elegir…</translation>
    </message>
    <message>
        <source>Choose a picture for the cover</source>
        <translation>Elegir una imagen para la carátula</translation>
    </message>
    <message>
        <source>Drop a picture here. Drag it out to remove it.</source>
        <translation>Suelte aquí una imagen. Arrástrela fuera para quitarla.</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Título:</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>A&amp;rtist:</source>
        <translation>A&amp;rtista:</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artista</translation>
    </message>
    <message>
        <source>Al&amp;bum:</source>
        <translation>Ál&amp;bum:</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Álbum</translation>
    </message>
    <message>
        <source>&amp;Year:</source>
        <translation>&amp;Año:</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <source>&amp;Genre:</source>
        <translation>&amp;Género:</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Género</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>&amp;Hecho</translation>
    </message>
</context>
<context>
    <name>ID3EditWndController</name>
    <message>
        <source>Choose</source>
        <translation>Elegir</translation>
    </message>
    <message>
        <source>This file is not a picture.</source>
        <translation>Este archivo no es una imagen.</translation>
    </message>
    <message>
        <source>Not everything could be saved.</source>
        <translation>No se pudo guardar todo.</translation>
    </message>
    <message>
        <source>ID3 converter......</source>
        <translation>Convirtiendo ID3......</translation>
    </message>
</context>
<context>
    <name>KeyNames</name>
    <message>
        <source>Control</source>
        <comment>a key of the keyboard</comment>
        <translation>Control</translation>
    </message>
    <message>
        <source>Super</source>
        <comment>a key of the keyboard</comment>
        <translation>Súper</translation>
    </message>
    <message>
        <source>Shift</source>
        <comment>a key of the keyboard</comment>
        <translation>Mayús</translation>
    </message>
    <message>
        <source>Alt</source>
        <comment>a key of the keyboard</comment>
        <translation>Alt</translation>
    </message>
</context>
<context>
    <name>KeybordShortcutTextView</name>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>The desktop has no keys for this. Choose some in its settings.</source>
        <translation>El escritorio no tiene teclas para esto. Elija algunas en sus ajustes.</translation>
    </message>
    <message>
        <source>These keys are set in the desktop&apos;s settings.</source>
        <translation>Estas teclas se definen en los ajustes del escritorio.</translation>
    </message>
    <message>
        <source>No keys in the desktop&apos;s settings</source>
        <translation>Sin teclas en los ajustes del escritorio</translation>
    </message>
    <message>
        <source>Click, then press the keys</source>
        <translation>Haga clic y pulse las teclas</translation>
    </message>
    <message>
        <source>Press the keys</source>
        <translation>Pulse las teclas</translation>
    </message>
</context>
<context>
    <name>LibraryOutlineModel</name>
    <message numerus="yes">
        <source>%n recording(s)</source>
        <translation>
            <numerusform>%n grabación</numerusform>
            <numerusform>%n grabaciones</numerusform>
        </translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Biblioteca</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Núm.</translation>
    </message>
    <message>
        <source>Heading</source>
        <translation>Encabezado</translation>
    </message>
</context>
<context>
    <name>LibraryPresenter</name>
    <message>
        <source>The file is no longer there: %1</source>
        <translation>El archivo ya no está ahí: %1</translation>
    </message>
    <message>
        <source>“%1” cannot be played.</source>
        <translation>No se puede reproducir «%1».</translation>
    </message>
    <message>
        <source>“%1” cannot be played: %2</source>
        <translation>No se puede reproducir «%1»: %2</translation>
    </message>
    <message>
        <source>The folder of “%1” could not be shown.</source>
        <translation>No se pudo mostrar la carpeta de «%1».</translation>
    </message>
    <message>
        <source>No player could be opened for “%1”.</source>
        <translation>No se pudo abrir ningún reproductor para «%1».</translation>
    </message>
</context>
<context>
    <name>MainMenus</name>
    <message>
        <source>&amp;Record</source>
        <translation>&amp;Grabar</translation>
    </message>
    <message>
        <source>&amp;Cut to Another Recording</source>
        <translation>&amp;Cortar y seguir en otra</translation>
    </message>
    <message>
        <source>Close this file and go on in a new one</source>
        <translation>Cierra este archivo y sigue en uno nuevo</translation>
    </message>
    <message>
        <source>Record the &amp;Input Device</source>
        <translation>Grabar el dispositivo de &amp;entrada</translation>
    </message>
    <message>
        <source>Record Computer &amp;Audio</source>
        <translation>Grabar el &amp;audio del equipo</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>Edit &amp;Tags…</source>
        <translation>Editar &amp;etiquetas…</translation>
    </message>
    <message>
        <source>Title, artist, album and cover of the recording</source>
        <translation>Título, artista, álbum y carátula de la grabación</translation>
    </message>
    <message>
        <source>T&amp;rim…</source>
        <translation>&amp;Recortar…</translation>
    </message>
    <message>
        <source>Keep a part of the recording</source>
        <translation>Conserva una parte de la grabación</translation>
    </message>
    <message>
        <source>Make a &amp;Ringtone…</source>
        <translation>Crear un &amp;tono…</translation>
    </message>
    <message>
        <source>Cut a ringtone out of the recording</source>
        <translation>Extrae un tono de llamada de la grabación</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>Delete the selected recordings and their files</source>
        <translation>Elimina las grabaciones seleccionadas y sus archivos</translation>
    </message>
    <message>
        <source>&amp;Search…</source>
        <translation>&amp;Buscar…</translation>
    </message>
    <message>
        <source>Search titles, artists and albums</source>
        <translation>Busca en títulos, artistas y álbumes</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Seleccionar todo</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferencias…</translation>
    </message>
    <message>
        <source>&amp;Library</source>
        <translation>&amp;Biblioteca</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Reproducir</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Reproduce o pausa</translation>
    </message>
    <message>
        <source>Play the &amp;Selected Recording</source>
        <translation>Reproducir la &amp;selección</translation>
    </message>
    <message>
        <source>Play from its beginning</source>
        <translation>Reproduce desde el principio</translation>
    </message>
    <message>
        <source>Back %1 Seconds</source>
        <translation>Retroceder %1 segundos</translation>
    </message>
    <message>
        <source>Forward %1 Seconds</source>
        <translation>Avanzar %1 segundos</translation>
    </message>
    <message>
        <source>S&amp;how in Folder</source>
        <translation>&amp;Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>Show the file in the file manager</source>
        <translation>Muestra el archivo en el gestor de archivos</translation>
    </message>
    <message>
        <source>&amp;Open in Player</source>
        <translation>&amp;Abrir en el reproductor</translation>
    </message>
    <message>
        <source>Open the file in your music player</source>
        <translation>Abre el archivo en su reproductor de música</translation>
    </message>
    <message>
        <source>&amp;Burn to Disc…</source>
        <translation>&amp;Grabar en disco…</translation>
    </message>
    <message>
        <source>Make an audio CD of this list</source>
        <translation>Crea un CD de audio con esta lista</translation>
    </message>
    <message>
        <source>&amp;Find Short Recordings…</source>
        <translation>Buscar grabaciones &amp;cortas…</translation>
    </message>
    <message>
        <source>Find recordings that are too short to keep</source>
        <translation>Busca grabaciones demasiado cortas para conservarlas</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Switch the Display</source>
        <translation>&amp;Cambiar el visor</translation>
    </message>
    <message>
        <source>Level of the recording, or position of the playback</source>
        <translation>Nivel de la grabación o posición de la reproducción</translation>
    </message>
    <message>
        <source>Show the Next &amp;Notice</source>
        <translation>Mostrar el aviso &amp;siguiente</translation>
    </message>
    <message>
        <source>Several notices stand in the display</source>
        <translation>Hay varios avisos en el visor</translation>
    </message>
    <message>
        <source>&amp;Dismiss All Notices</source>
        <translation>&amp;Descartar todos los avisos</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Support Page</source>
        <translation>Página de &amp;soporte</translation>
    </message>
    <message>
        <source>Computer-Audio &amp;Add-on Page</source>
        <translation>Página del complemento de &amp;audio del equipo</translation>
    </message>
    <message>
        <source>&amp;Install the Computer-Audio Device…</source>
        <translation>&amp;Instalar el dispositivo de audio del equipo…</translation>
    </message>
    <message>
        <source>A&amp;bout Sonaphex</source>
        <translation>A&amp;cerca de Sonaphex</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Ringtone</source>
        <translation>Tono</translation>
    </message>
    <message>
        <source>Edit Tags</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>Grabar CD</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Open in player</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Choose the input, computer audio, or both first.</source>
        <translation>Elija antes la entrada, el audio del equipo o ambos.</translation>
    </message>
    <message>
        <source>Nothing is being recorded.</source>
        <translation>No se está grabando nada.</translation>
    </message>
    <message>
        <source>It is installed already.</source>
        <translation>Ya está instalado.</translation>
    </message>
    <message>
        <source>The device stays as it is until the recording ends.</source>
        <translation>El dispositivo se queda como está hasta que termine la grabación.</translation>
    </message>
    <message>
        <source>The sources stay as they are until the recording ends.</source>
        <translation>Las fuentes se quedan como están hasta que termine la grabación.</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pausar</translation>
    </message>
    <message>
        <source>Nothing is playing.</source>
        <translation>No se está reproduciendo nada.</translation>
    </message>
    <message>
        <source>&amp;Answer the Notice</source>
        <translation>&amp;Atender el aviso</translation>
    </message>
    <message>
        <source>&amp;Answer the Notice: %1</source>
        <translation>&amp;Atender el aviso: %1</translation>
    </message>
    <message>
        <source>There is no other notice.</source>
        <translation>No hay ningún otro aviso.</translation>
    </message>
    <message>
        <source>This notice offers nothing.</source>
        <translation>Este aviso no ofrece nada.</translation>
    </message>
    <message>
        <source>There is no notice.</source>
        <translation>No hay ningún aviso.</translation>
    </message>
    <message>
        <source>Select a recording first.</source>
        <translation>Seleccione antes una grabación.</translation>
    </message>
    <message>
        <source>Select a recording first. Nothing is played while recording.</source>
        <translation>Seleccione antes una grabación. Mientras se graba no se reproduce nada.</translation>
    </message>
    <message>
        <source>Arrives in a later version of Sonaphex.</source>
        <translation>Llegará en una versión posterior de Sonaphex.</translation>
    </message>
    <message>
        <source>There is nothing in this list.</source>
        <translation>No hay nada en esta lista.</translation>
    </message>
    <message>
        <source>About Sonaphex</source>
        <translation>Acerca de Sonaphex</translation>
    </message>
    <message>
        <source>Sonaphex %1</source>
        <translation>Sonaphex %1</translation>
    </message>
    <message>
        <source>Records what the computer plays, what a microphone hears, or both.

© 2026 The Sonaphex authors. Free software under the GNU General Public License, version 3 or later.</source>
        <translation>Graba lo que reproduce el equipo, lo que capta un micrófono, o ambas cosas.

© 2026 Los autores de Sonaphex. Software libre bajo la Licencia Pública General de GNU, versión 3 o posterior.</translation>
    </message>
    <message>
        <source>S&amp;ort By</source>
        <translation>&amp;Ordenar por</translation>
    </message>
    <message>
        <source>&amp;Unsorted</source>
        <translation>&amp;Sin ordenar</translation>
    </message>
    <message>
        <source>Sp&amp;lit at Silences…</source>
        <translation>&amp;Dividir en los silencios…</translation>
    </message>
    <message>
        <source>Cut the recording into several at its silences</source>
        <translation>Corta la grabación en varias por sus silencios</translation>
    </message>
    <message>
        <source>&amp;Join…</source>
        <translation>&amp;Unir…</translation>
    </message>
    <message>
        <source>Make one recording of the selected ones, in the order of the list</source>
        <translation>Crea una sola grabación con las seleccionadas, en el orden de la lista</translation>
    </message>
    <message>
        <source>Select two recordings or more first.</source>
        <translation>Seleccione antes dos grabaciones o más.</translation>
    </message>
    <message>
        <source>&amp;Balance…</source>
        <translation>Bala&amp;nce…</translation>
    </message>
    <message>
        <source>Mix the input and computer audio of the recording anew</source>
        <translation>Vuelve a mezclar la entrada y el audio del equipo de la grabación</translation>
    </message>
    <message>
        <source>This recording has no tracks. The preferences have a box that keeps those of the next ones.</source>
        <translation>Esta grabación no tiene pistas. En las preferencias hay una casilla para conservar las de las siguientes.</translation>
    </message>
</context>
<context>
    <name>MainWnd</name>
    <message>
        <source>Start or stop recording</source>
        <translation>Iniciar o detener la grabación</translation>
    </message>
    <message>
        <source>Pause or resume recording</source>
        <translation>Pausar o reanudar la grabación</translation>
    </message>
    <message>
        <source>Cut to another recording</source>
        <translation>Cortar y seguir en otra grabación</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Visor</translation>
    </message>
    <message>
        <source>&amp;Input</source>
        <translation>Entra&amp;da</translation>
    </message>
    <message>
        <source>Record the chosen input device</source>
        <translation>Graba el dispositivo de entrada elegido</translation>
    </message>
    <message>
        <source>Record the input device</source>
        <translation>Grabar el dispositivo de entrada</translation>
    </message>
    <message>
        <source>Input device</source>
        <translation>Dispositivo de entrada</translation>
    </message>
    <message>
        <source>&amp;Computer audio</source>
        <translation>A&amp;udio del equipo</translation>
    </message>
    <message>
        <source>Record what the computer plays</source>
        <translation>Graba lo que reproduce el equipo</translation>
    </message>
    <message>
        <source>Record computer audio</source>
        <translation>Grabar el audio del equipo</translation>
    </message>
    <message>
        <source>Lost frames</source>
        <translation>Tramas perdidas</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Biblioteca</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Grabaciones</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Programs to record</source>
        <translation>Programas que se graban</translation>
    </message>
</context>
<context>
    <name>MainWndController</name>
    <message>
        <source>The computer-audio device is installed.</source>
        <translation>El dispositivo de audio del equipo está instalado.</translation>
    </message>
    <message>
        <source>The computer-audio device is installed. What the computer plays is recorded from now on.</source>
        <translation>El dispositivo de audio del equipo está instalado. A partir de ahora se graba lo que reproduce el equipo.</translation>
    </message>
    <message>
        <source>“%1” was not added: it is shorter than %2 s.</source>
        <translation>«%1» no se añadió: dura menos de %2 s.</translation>
    </message>
    <message>
        <source>%1 selected, %2 together</source>
        <translation>%1 seleccionadas, %2 en total</translation>
    </message>
    <message>
        <source>No title, artist or album here has “%1” in it.</source>
        <translation>Ningún título, artista o álbum de aquí contiene «%1».</translation>
    </message>
    <message>
        <source>The recording appears here when it has ended.</source>
        <translation>La grabación aparece aquí cuando ha terminado.</translation>
    </message>
    <message>
        <source>Nothing here yet. Press the red button to make your first recording.</source>
        <translation>Aún no hay nada. Pulse el botón rojo para hacer su primera grabación.</translation>
    </message>
    <message>
        <source>Ringtones that you make of your recordings appear here.</source>
        <translation>Aquí aparecen los tonos que cree a partir de sus grabaciones.</translation>
    </message>
    <message>
        <source>Recordings that you make now appear here.</source>
        <translation>Aquí aparecen las grabaciones que haga ahora.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
</context>
<context>
    <name>Media</name>
    <message>
        <source>cannot be read from the beginning</source>
        <translation>no se puede leer desde el principio</translation>
    </message>
    <message>
        <source>audio files cannot be read: %1</source>
        <translation>no se pueden leer archivos de audio: %1</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>memoria agotada</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>no se puede leer</translation>
    </message>
    <message>
        <source>not an audio file, or too damaged to be read</source>
        <translation>no es un archivo de audio, o está demasiado dañado para leerlo</translation>
    </message>
    <message>
        <source>the file contains no audio</source>
        <translation>el archivo no contiene audio</translation>
    </message>
    <message>
        <source>its audio format is not supported</source>
        <translation>su formato de audio no se admite</translation>
    </message>
    <message>
        <source>no decoder for its audio format</source>
        <translation>no hay decodificador para su formato de audio</translation>
    </message>
    <message>
        <source>its audio cannot be decoded</source>
        <translation>no se puede decodificar su audio</translation>
    </message>
    <message>
        <source>damaged at frame %1 (%2)</source>
        <translation>dañado en la trama %1 (%2)</translation>
    </message>
    <message>
        <source>channels that cannot be mixed</source>
        <translation>canales que no se pueden mezclar</translation>
    </message>
    <message>
        <source>not a finished recording of Sonaphex</source>
        <translation>no es una grabación finalizada de Sonaphex</translation>
    </message>
    <message>
        <source>its index is damaged</source>
        <translation>su índice está dañado</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>el archivo está vacío</translation>
    </message>
    <message>
        <source>the AAC encoder failed</source>
        <translation>el codificador AAC falló</translation>
    </message>
    <message>
        <source>the encoder is missing: %1</source>
        <translation>falta el codificador: %1</translation>
    </message>
    <message>
        <source>the encoder does not take this rate or channel count</source>
        <translation>el codificador no admite esta frecuencia o este número de canales</translation>
    </message>
    <message>
        <source>the rate cannot be converted</source>
        <translation>no se puede convertir la frecuencia de muestreo</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>this format cannot be written</source>
        <translation>no se puede escribir este formato</translation>
    </message>
    <message>
        <source>too deeply nested</source>
        <translation>anidamiento demasiado profundo</translation>
    </message>
    <message>
        <source>a box of impossible size</source>
        <translation>una caja de tamaño imposible</translation>
    </message>
    <message>
        <source>too many boxes</source>
        <translation>demasiadas cajas</translation>
    </message>
    <message>
        <source>a box larger than the one around it</source>
        <translation>una caja mayor que la que la contiene</translation>
    </message>
    <message>
        <source>a table that is larger than its box</source>
        <translation>una tabla mayor que su caja</translation>
    </message>
    <message>
        <source>not an MPEG-4 file</source>
        <translation>no es un archivo MPEG-4</translation>
    </message>
    <message>
        <source>the file ends within its index</source>
        <translation>el archivo termina dentro de su índice</translation>
    </message>
    <message>
        <source>the file has no index</source>
        <translation>el archivo no tiene índice</translation>
    </message>
    <message>
        <source>a packet of the recording cannot be read</source>
        <translation>no se puede leer un paquete de la grabación</translation>
    </message>
    <message>
        <source>stopped before the end</source>
        <translation>se detuvo antes del final</translation>
    </message>
    <message>
        <source>%1 cannot be played</source>
        <translation>no se puede reproducir %1</translation>
    </message>
    <message>
        <source>the sound server went away</source>
        <translation>el servidor de sonido dejó de estar disponible</translation>
    </message>
    <message>
        <source>no sound server answers: %1</source>
        <translation>no responde ningún servidor de sonido: %1</translation>
    </message>
    <message>
        <source>the sound server refused the stream</source>
        <translation>el servidor de sonido rechazó el flujo</translation>
    </message>
    <message>
        <source>its tags cannot be written</source>
        <translation>no se pueden escribir sus etiquetas</translation>
    </message>
    <message>
        <source>cannot write the tags of %1: %2</source>
        <translation>no se pueden escribir las etiquetas de %1: %2</translation>
    </message>
    <message>
        <source>cannot read the tags of %1: %2</source>
        <translation>no se pueden leer las etiquetas de %1: %2</translation>
    </message>
    <message>
        <source>its tags cannot be read</source>
        <translation>no se pueden leer sus etiquetas</translation>
    </message>
    <message>
        <source>cannot read the image %1: %2</source>
        <translation>no se puede leer la imagen %1: %2</translation>
    </message>
    <message>
        <source>%1 is neither a JPEG nor a PNG image</source>
        <translation>%1 no es una imagen JPEG ni PNG</translation>
    </message>
    <message>
        <source>cannot write the artwork of %1 to %2: %3</source>
        <translation>no se puede escribir la carátula de %1 en %2: %3</translation>
    </message>
    <message>
        <source>another program is changing it</source>
        <translation>otro programa lo está modificando</translation>
    </message>
    <message>
        <source>its index cannot hold more</source>
        <translation>su índice no puede contener más</translation>
    </message>
    <message>
        <source>the file is cut off</source>
        <translation>el archivo está cortado</translation>
    </message>
    <message>
        <source>its index is too large</source>
        <translation>su índice es demasiado grande</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>no se puede leer</translation>
    </message>
    <message>
        <source>that path is not a regular file</source>
        <translation>esa ruta no es un archivo normal</translation>
    </message>
    <message>
        <source>its last box has no size</source>
        <translation>su última caja no tiene tamaño</translation>
    </message>
</context>
<context>
    <name>MediaLibrary</name>
    <message>
        <source>Record Library</source>
        <translation>Grabaciones</translation>
    </message>
    <message>
        <source>Newly Recorded</source>
        <translation>Recién grabado</translation>
    </message>
    <message>
        <source>All Recorded</source>
        <translation>Todo lo grabado</translation>
    </message>
    <message>
        <source>Ringtone Library</source>
        <translation>Tonos de llamada</translation>
    </message>
    <message>
        <source>Newly Ringtone</source>
        <translation>Tonos recientes</translation>
    </message>
    <message>
        <source>All Ringtone</source>
        <translation>Todos los tonos</translation>
    </message>
</context>
<context>
    <name>Platform::PortalAutostart</name>
    <message>
        <source>Sonaphex waits in the status bar.</source>
        <translation>Sonaphex espera en la bandeja del sistema.</translation>
    </message>
    <message>
        <source>the desktop did not allow it</source>
        <translation>el escritorio no lo permitió</translation>
    </message>
</context>
<context>
    <name>Players</name>
    <message>
        <source>the address is incomplete</source>
        <translation>la dirección está incompleta</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>la imagen es demasiado grande</translation>
    </message>
    <message>
        <source>the picture is not a file of this machine</source>
        <translation>la imagen no es un archivo de este equipo</translation>
    </message>
</context>
<context>
    <name>PreferenceWnd</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>&amp;Recordings:</source>
        <translation>&amp;Grabaciones:</translation>
    </message>
    <message>
        <source>Folder of recordings</source>
        <translation>Carpeta de grabaciones</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Elegir…</translation>
    </message>
    <message>
        <source>Choose the folder of recordings</source>
        <translation>Elegir la carpeta de grabaciones</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>&amp;Mostrar</translation>
    </message>
    <message>
        <source>Show the folder of recordings</source>
        <translation>Mostrar la carpeta de grabaciones</translation>
    </message>
    <message>
        <source>Rin&amp;gtones:</source>
        <translation>&amp;Tonos:</translation>
    </message>
    <message>
        <source>Folder of ringtones</source>
        <translation>Carpeta de tonos</translation>
    </message>
    <message>
        <source>Choose the folder of ringtones</source>
        <translation>Elegir la carpeta de tonos</translation>
    </message>
    <message>
        <source>S&amp;how</source>
        <translation>Most&amp;rar</translation>
    </message>
    <message>
        <source>Show the folder of ringtones</source>
        <translation>Mostrar la carpeta de tonos</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Grabación</translation>
    </message>
    <message>
        <source>&amp;Split computer audio at a silence of</source>
        <translation>&amp;Dividir el audio del equipo en silencios de</translation>
    </message>
    <message>
        <source>Split computer audio at silences</source>
        <translation>Dividir el audio del equipo en los silencios</translation>
    </message>
    <message>
        <source>Length of silence in milliseconds</source>
        <translation>Duración del silencio en milisegundos</translation>
    </message>
    <message>
        <source>milliseconds</source>
        <translation>milisegundos</translation>
    </message>
    <message>
        <source>&amp;Leave out recordings shorter than</source>
        <translation>&amp;Omitir grabaciones de menos de</translation>
    </message>
    <message>
        <source>Leave out short recordings</source>
        <translation>Omitir grabaciones cortas</translation>
    </message>
    <message>
        <source>Shortest recording in seconds</source>
        <translation>Grabación más corta en segundos</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>segundos</translation>
    </message>
    <message>
        <source>&amp;Begin before the first sound by</source>
        <translation>In&amp;cluir antes del primer sonido</translation>
    </message>
    <message>
        <source>Time before the first sound in milliseconds</source>
        <translation>Tiempo antes del primer sonido en milisegundos</translation>
    </message>
    <message>
        <source>A recording of computer audio waits for the first sound. It then contains this much of the time before it.</source>
        <translation>Una grabación del audio del equipo espera el primer sonido; incluye además este tiempo anterior a él.</translation>
    </message>
    <message>
        <source>Computer audio</source>
        <translation>Audio del equipo</translation>
    </message>
    <message>
        <source>State of the computer-audio device</source>
        <translation>Estado del dispositivo de audio del equipo</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Instalar</translation>
    </message>
    <message>
        <source>Install the computer-audio device</source>
        <translation>Instalar el dispositivo de audio del equipo</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Desinsta&amp;lar</translation>
    </message>
    <message>
        <source>Remove the computer-audio device</source>
        <translation>Desinstalar el dispositivo de audio del equipo</translation>
    </message>
    <message>
        <source>Working on the computer-audio device</source>
        <translation>Operación en curso con el dispositivo de audio del equipo</translation>
    </message>
    <message>
        <source>Problem of the computer-audio device</source>
        <translation>Problema del dispositivo de audio del equipo</translation>
    </message>
    <message>
        <source>Shortcuts from any program</source>
        <translation>Atajos desde cualquier programa</translation>
    </message>
    <message>
        <source>Star&amp;t or stop:</source>
        <translation>I&amp;niciar o detener:</translation>
    </message>
    <message>
        <source>Shortcut for start and stop</source>
        <translation>Atajo para iniciar y detener</translation>
    </message>
    <message>
        <source>&amp;Pause or resume:</source>
        <translation>&amp;Pausar o reanudar:</translation>
    </message>
    <message>
        <source>Shortcut for pause and resume</source>
        <translation>Atajo para pausar y reanudar</translation>
    </message>
    <message>
        <source>&amp;New recording:</source>
        <translation>Nue&amp;va grabación:</translation>
    </message>
    <message>
        <source>Shortcut for a new recording</source>
        <translation>Atajo para una nueva grabación</translation>
    </message>
    <message>
        <source>Use the &amp;Defaults</source>
        <translation>&amp;Usar predeterminados</translation>
    </message>
    <message>
        <source>Use the default shortcuts</source>
        <translation>Usar los atajos predeterminados</translation>
    </message>
    <message>
        <source>How to bind keys on this desktop</source>
        <translation>Cómo asignar teclas en este escritorio</translation>
    </message>
    <message>
        <source>Commands to bind</source>
        <translation>Órdenes para asignar</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Escritorio</translation>
    </message>
    <message>
        <source>N&amp;otify when a recording ends in the background</source>
        <translation>Noti&amp;ficar al terminar una grabación en segundo plano</translation>
    </message>
    <message>
        <source>Notify when a recording ends in the background</source>
        <translation>Notificar al terminar una grabación en segundo plano</translation>
    </message>
    <message>
        <source>A notification tells of finished and cut recordings, and of problems, while the window is not in front.</source>
        <translation>Una notificación informa de las grabaciones terminadas y cortadas, y de los problemas, mientras la ventana no está en primer plano.</translation>
    </message>
    <message>
        <source>St&amp;art with the desktop, hidden</source>
        <translation>Iniciar con el &amp;escritorio, oculto</translation>
    </message>
    <message>
        <source>Start with the desktop, hidden</source>
        <translation>Iniciar con el escritorio, oculto</translation>
    </message>
    <message>
        <source>Sonaphex waits in the status bar after you log in.</source>
        <translation>Sonaphex espera en la bandeja del sistema después de iniciar sesión.</translation>
    </message>
    <message>
        <source>Ta&amp;ke titles and covers from the media player</source>
        <translation>Tom&amp;ar títulos y carátulas del reproductor multimedia</translation>
    </message>
    <message>
        <source>Take titles and covers from the media player</source>
        <translation>Tomar títulos y carátulas del reproductor multimedia</translation>
    </message>
    <message>
        <source>A recording of computer audio gets the title, artist, album and cover that the media player names for most of its length. Its file name stays as it is.</source>
        <translation>Una grabación del audio del equipo recibe el título, el artista, el álbum y la carátula que el reproductor multimedia indica durante la mayor parte de su duración. Su nombre de archivo se queda como está.</translation>
    </message>
    <message>
        <source>Split &amp;computer audio when the media player changes the track</source>
        <translation>Dividir el audio del e&amp;quipo al cambiar de pista el reproductor</translation>
    </message>
    <message>
        <source>Split computer audio when the media player changes the track</source>
        <translation>Dividir el audio del equipo al cambiar de pista el reproductor</translation>
    </message>
    <message>
        <source>For albums without silences between the tracks.</source>
        <translation>Para álbumes sin silencios entre las pistas.</translation>
    </message>
    <message>
        <source>K&amp;eep both tracks beside the mix</source>
        <translation>Conservar am&amp;bas pistas junto a la mezcla</translation>
    </message>
    <message>
        <source>Keep both tracks beside the mix</source>
        <translation>Conservar ambas pistas junto a la mezcla</translation>
    </message>
    <message>
        <source>A recording of both sources then also keeps the input and computer audio, each as a file of its own. Balance… mixes them anew. This takes three times the disk space, and more time after the recording.</source>
        <translation>Una grabación de ambas fuentes conserva entonces también la entrada y el audio del equipo, cada uno en su propio archivo. «Balance…» los vuelve a mezclar. Esto ocupa el triple de espacio en el disco y requiere más tiempo después de la grabación.</translation>
    </message>
</context>
<context>
    <name>PreferenceWndController</name>
    <message>
        <source>Start or stop the recording</source>
        <translation>Iniciar o detener la grabación</translation>
    </message>
    <message>
        <source>Pause or resume the recording</source>
        <translation>Pausar o reanudar la grabación</translation>
    </message>
    <message>
        <source>Start a new recording</source>
        <translation>Iniciar una nueva grabación</translation>
    </message>
    <message>
        <source>Sonaphex cannot be started with the desktop.</source>
        <translation>Sonaphex no se puede iniciar con el escritorio.</translation>
    </message>
    <message>
        <source>Sonaphex is still started with the desktop.</source>
        <translation>Sonaphex se sigue iniciando con el escritorio.</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Elegir</translation>
    </message>
    <message>
        <source>Nothing is split at a silence: check the box first.</source>
        <translation>No se divide nada en los silencios: marque antes la casilla.</translation>
    </message>
    <message>
        <source>All recordings are kept: check the box first.</source>
        <translation>Se conservan todas las grabaciones: marque antes la casilla.</translation>
    </message>
    <message>
        <source>Installing the computer-audio device…</source>
        <translation>Instalando el dispositivo de audio del equipo…</translation>
    </message>
    <message>
        <source>Removing the computer-audio device…</source>
        <translation>Desinstalando el dispositivo de audio del equipo…</translation>
    </message>
    <message>
        <source>The computer-audio device is installed.</source>
        <translation>El dispositivo de audio del equipo está instalado.</translation>
    </message>
    <message>
        <source>The computer-audio device is not installed.</source>
        <translation>El dispositivo de audio del equipo no está instalado.</translation>
    </message>
    <message>
        <source>It is installed already.</source>
        <translation>Ya está instalado.</translation>
    </message>
    <message>
        <source>There is nothing to remove.</source>
        <translation>No hay nada que desinstalar.</translation>
    </message>
    <message>
        <source>This desktop does not allow global shortcuts.</source>
        <translation>Este escritorio no permite atajos globales.</translation>
    </message>
    <message>
        <source>This desktop does not allow global shortcuts. Bind these commands to keys in the desktop&apos;s own keyboard settings:</source>
        <translation>Este escritorio no permite atajos globales. Asigne teclas a estas órdenes en los ajustes de teclado del propio escritorio:</translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation>Advertencia:</translation>
    </message>
    <message>
        <source>You cannot save files in the folder. Read and write privilege is needed.</source>
        <translation>No puede guardar archivos en la carpeta. Se necesita permiso de lectura y escritura.</translation>
    </message>
    <message>
        <source>Can not insert the system audio device, Please try it again.</source>
        <translation>No se puede instalar el dispositivo de audio del sistema; inténtelo de nuevo.</translation>
    </message>
</context>
<context>
    <name>ProcessWnd</name>
    <message>
        <source>Burn Progress</source>
        <translation>Progreso de la grabación</translation>
    </message>
    <message>
        <source>Burn progress</source>
        <translation>Progreso de la grabación del disco</translation>
    </message>
    <message>
        <source>Burn state</source>
        <translation>Estado de la grabación del disco</translation>
    </message>
</context>
<context>
    <name>ProcessWndController</name>
    <message>
        <source>A burn cannot be stopped before it has written 4 %.</source>
        <translation>La grabación del disco no se puede detener hasta que se haya escrito el 4&#xa0;%.</translation>
    </message>
    <message>
        <source>Stops the burn; the disc is then unusable.</source>
        <translation>Detiene la grabación; el disco queda inservible.</translation>
    </message>
    <message>
        <source>Burn Progress:</source>
        <translation>Grabación del disco:</translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation>Advertencia:</translation>
    </message>
    <message>
        <source>Are you sure to end the task?</source>
        <translation>¿Seguro que desea terminar la tarea?</translation>
    </message>
    <message>
        <source>Please waiting a moment ...</source>
        <translation>Espere un momento ...</translation>
    </message>
    <message>
        <source>Burning Disc...</source>
        <translation>Grabando el disco...</translation>
    </message>
</context>
<context>
    <name>ProgramsMenu</name>
    <message>
        <source>Programs to record</source>
        <translation>Programas que se graban</translation>
    </message>
    <message>
        <source>Programs to record: %1</source>
        <translation>Programas que se graban: %1</translation>
    </message>
    <message>
        <source>Of computer audio, this is recorded: %1</source>
        <translation>Del audio del equipo se graba: %1</translation>
    </message>
    <message>
        <source>The sources stay as they are until the recording ends.</source>
        <translation>Las fuentes se quedan como están hasta que termine la grabación.</translation>
    </message>
    <message>
        <source>The computer-audio device is not installed.</source>
        <translation>El dispositivo de audio del equipo no está instalado.</translation>
    </message>
    <message>
        <source>&amp;Everything</source>
        <translation>&amp;Todo</translation>
    </message>
    <message>
        <source>&amp;Only</source>
        <translation>&amp;Solo</translation>
    </message>
    <message>
        <source>Everything &amp;but</source>
        <translation>Todo &amp;menos</translation>
    </message>
    <message>
        <source>No program has played yet</source>
        <translation>Aún no ha sonado ningún programa</translation>
    </message>
    <message>
        <source>P&amp;rograms to Record</source>
        <translation>&amp;Programas que se graban</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Opción «%1» desconocida.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Opciones desconocidas: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Falta un valor después de «%1».</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Valor inesperado después de «%1».</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The sound server does not answer yet. Waiting for it…</source>
        <translation>El servidor de sonido aún no responde. Esperando…</translation>
    </message>
    <message>
        <source>Do Not Wait</source>
        <translation>No esperar</translation>
    </message>
    <message>
        <source>The device stays as it is until the recording ends.</source>
        <translation>El dispositivo se queda como está hasta que termine la grabación.</translation>
    </message>
</context>
<context>
    <name>Record</name>
    <message>
        <source>%1 cannot be written</source>
        <translation>no se puede escribir %1</translation>
    </message>
    <message>
        <source>Rec..</source>
        <translation>Grab..</translation>
    </message>
    <message>
        <source>Rec</source>
        <translation>Grab</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Waiting for the first sound</source>
        <translation>Esperando el primer sonido</translation>
    </message>
    <message>
        <source>Recording %1</source>
        <translation>Grabando %1</translation>
    </message>
    <message>
        <source>Paused %1</source>
        <translation>En pausa %1</translation>
    </message>
    <message>
        <source>Finishing the recording</source>
        <translation>Finalizando la grabación</translation>
    </message>
    <message>
        <source>         Audio File Converting
         Please Wait ..</source>
        <translation>         Convirtiendo el audio
         Espere ..</translation>
    </message>
    <message>
        <source>         Audio File Converting
         Please Wait </source>
        <translation>         Convirtiendo el audio
         Espere </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>two paths</comment>
        <translation>%1 y %2</translation>
    </message>
    <message>
        <source>the reason is unknown</source>
        <translation>se desconoce el motivo</translation>
    </message>
    <message>
        <source>The recording is kept, and moved by the next start when there is room, at</source>
        <comment>a path follows</comment>
        <translation>La grabación se moverá en el próximo inicio si hay espacio; se conserva en</translation>
    </message>
    <message>
        <source>The recording is kept at</source>
        <comment>a path follows</comment>
        <translation>La grabación se conserva en</translation>
    </message>
    <message>
        <source>It is kept, and moved by the next start when there is room, at</source>
        <comment>the source of a recording; a path follows</comment>
        <translation>Se moverá en el próximo inicio si hay espacio; se conserva en</translation>
    </message>
    <message>
        <source>It is kept at</source>
        <comment>the source of a recording; a path follows</comment>
        <translation>Se conserva en</translation>
    </message>
    <message>
        <source>What it was made from is kept, and moved by the next start when there is room, at</source>
        <comment>a path follows</comment>
        <translation>El material de origen se moverá en el próximo inicio si hay espacio; se conserva en</translation>
    </message>
    <message>
        <source>What it was made from is kept at</source>
        <comment>a path follows</comment>
        <translation>El material de origen se conserva en</translation>
    </message>
    <message>
        <source>A part of the recording could not be written (error %1). What was written is kept.</source>
        <translation>No se pudo escribir una parte de la grabación (error %1). Lo escrito se conserva.</translation>
    </message>
    <message>
        <source>%1: %2 could not be saved in “%3”.</source>
        <translation>%1: no se pudo guardar %2 en «%3».</translation>
    </message>
    <message>
        <source>%1 could not be finished: %2.</source>
        <translation>No se pudo finalizar %1: %2.</translation>
    </message>
    <message>
        <source>One source of %1 could not be read (%2) and is missing in it.</source>
        <translation>Una fuente de %1 no se pudo leer (%2) y falta en la grabación.</translation>
    </message>
    <message>
        <source>%1 could not be mixed: %2.</source>
        <translation>No se pudo mezclar %1: %2.</translation>
    </message>
    <message>
        <source>The disk is nearly full: %1 could not be mixed, which needs %2 MB; %3 MB are left.</source>
        <translation>El disco está casi lleno: no se pudo mezclar %1, que necesita %2 MB; quedan %3 MB.</translation>
    </message>
    <message>
        <source>%1 could not be encoded: %2.</source>
        <translation>No se pudo codificar %1: %2.</translation>
    </message>
    <message>
        <source>A part of %1 could not be read (%2) and is missing in it.</source>
        <translation>Una parte de %1 no se pudo leer (%2) y falta en la grabación.</translation>
    </message>
    <message>
        <source>%1 could not be tagged. Its audio is complete.</source>
        <translation>No se pudo etiquetar %1. Su audio está completo.</translation>
    </message>
    <message>
        <source>less than a minute</source>
        <translation>menos de un minuto</translation>
    </message>
    <message>
        <source>about 1 minute</source>
        <translation>alrededor de 1 minuto</translation>
    </message>
    <message numerus="yes">
        <source>about %n minutes</source>
        <translation>
            <numerusform>alrededor de %n minuto</numerusform>
            <numerusform>unos %n minutos</numerusform>
        </translation>
    </message>
    <message>
        <source>Waring:</source>
        <translation>Advertencia:</translation>
    </message>
    <message>
        <source>The application is reading your USB headset data, please do not unplug your USB headset, if you want to unplug your USB headset please turn off this application first， Otherwise give your computer some trouble.</source>
        <translation>La aplicación está leyendo datos de sus auriculares USB; no los desconecte. Si quiere desconectarlos, cierre antes esta aplicación; de lo contrario, su equipo podría tener problemas.</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2. Nothing is heard from it until it can.</source>
        <translation>No se puede abrir %1: %2. No se recibirá sonido de él hasta que se pueda abrir.</translation>
    </message>
    <message>
        <source>%1 is gone. There is no other input device: connect one.</source>
        <translation>%1 ya no está disponible. No hay ningún otro dispositivo de entrada: conecte uno.</translation>
    </message>
    <message>
        <source>%1 is gone. %2 takes its place until it is back.</source>
        <translation>%1 ya no está disponible. %2 ocupa su lugar hasta que vuelva.</translation>
    </message>
    <message>
        <source>The input device</source>
        <translation>El dispositivo de entrada</translation>
    </message>
    <message>
        <source>the input device</source>
        <translation>el dispositivo de entrada</translation>
    </message>
    <message>
        <source>Computer audio</source>
        <translation>El audio del equipo</translation>
    </message>
    <message>
        <source>computer audio</source>
        <translation>el audio del equipo</translation>
    </message>
    <message>
        <source>Add-on required to record the system audio.</source>
        <translation>Se necesita un complemento para grabar el audio del sistema.</translation>
    </message>
    <message>
        <source>KorvanAudioDevice is easy to use, it simply accept system audio data, allowing any audio application to send and receive audio with no other support needed. KorvanAudioDevice is free, and runs on Linux computers. This driver will only be used by Sonaphex.</source>
        <translation>KorvanAudioDevice es fácil de usar: solo recibe los datos de audio del sistema y permite que cualquier aplicación de audio los envíe y reciba sin más requisitos. KorvanAudioDevice es gratuito y funciona en equipos con Linux. Solo Sonaphex usará este controlador.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message>
        <source>Please stop your recording.</source>
        <translation>Detenga la grabación.</translation>
    </message>
    <message>
        <source>Stop Record</source>
        <translation>Detener grabación</translation>
    </message>
    <message>
        <source>Start Record</source>
        <translation>Iniciar grabación</translation>
    </message>
    <message>
        <source>Pause Record</source>
        <translation>Pausar grabación</translation>
    </message>
    <message>
        <source>Nothing is being recorded</source>
        <translation>No se está grabando nada</translation>
    </message>
    <message>
        <source>The input device does not deliver. Nothing is recorded.</source>
        <translation>El dispositivo de entrada no entrega datos. No se graba nada.</translation>
    </message>
    <message>
        <source>Computer audio does not deliver. Nothing is recorded.</source>
        <translation>El audio del equipo no entrega datos. No se graba nada.</translation>
    </message>
    <message>
        <source>There is no input device. Nothing is recorded.</source>
        <translation>No hay ningún dispositivo de entrada. No se graba nada.</translation>
    </message>
    <message>
        <source>The input device does not deliver (%1). Nothing is recorded.</source>
        <translation>El dispositivo de entrada no entrega datos (%1). No se graba nada.</translation>
    </message>
    <message>
        <source>%1 is off: it did not start. This recording goes without it.</source>
        <translation>%1 está desactivado: no se inició. Esta grabación se hace sin él.</translation>
    </message>
    <message>
        <source>%1 is off: it did not start (%2). This recording goes without it.</source>
        <translation>%1 está desactivado: no se inició (%2). Esta grabación se hace sin él.</translation>
    </message>
    <message>
        <source>%1 is not being recorded: %2.</source>
        <translation>%1 no se está grabando: %2.</translation>
    </message>
    <message>
        <source>The recording could not be split (%1). It continues in the same file.</source>
        <translation>No se pudo dividir la grabación (%1). Continúa en el mismo archivo.</translation>
    </message>
    <message>
        <source>The sound server</source>
        <translation>El servidor de sonido</translation>
    </message>
    <message>
        <source>%1 went away. The wait for the first sound continues when it is back.</source>
        <translation>%1 dejó de estar disponible. La espera del primer sonido continuará cuando vuelva.</translation>
    </message>
    <message>
        <source>%1 went away. The recording so far is kept and continues when it is back.</source>
        <translation>%1 dejó de estar disponible. Lo grabado hasta ahora se conserva; la grabación continuará cuando vuelva.</translation>
    </message>
    <message>
        <source>%1 is back. The wait for the first sound goes on.</source>
        <translation>%1 ha vuelto. Continúa la espera del primer sonido.</translation>
    </message>
    <message>
        <source>%1 s are missing: %2 was away. The recording goes on.</source>
        <translation>Faltan %1 s: %2 no estaba disponible. La grabación continúa.</translation>
    </message>
    <message>
        <source>%1 s are missing (%2 frames): the computer was too busy to take them.</source>
        <translation>Faltan %1 s (%2 tramas): el equipo estaba demasiado ocupado para recibirlas.</translation>
    </message>
    <message>
        <source>The disk is full. Nothing more is recorded until there is room; what was recorded is kept.</source>
        <translation>El disco está lleno. No se graba nada más hasta que haya espacio; lo grabado se conserva.</translation>
    </message>
    <message>
        <source>%1. Nothing more is recorded; what was recorded is kept.</source>
        <translation>%1. No se graba nada más; lo grabado se conserva.</translation>
    </message>
    <message>
        <source>Computer audio has been silent for %1 s: nothing plays.</source>
        <translation>El audio del equipo lleva %1 s en silencio: no se reproduce nada.</translation>
    </message>
    <message>
        <source>Computer audio has been silent for %1 s: nothing plays on %2, the output that is recorded.</source>
        <translation>El audio del equipo lleva %1 s en silencio: no se reproduce nada en %2, la salida que se graba.</translation>
    </message>
    <message>
        <source>The input device is muted: only silence has been recorded for %1 s.</source>
        <translation>El dispositivo de entrada está silenciado: solo se ha grabado silencio durante %1 s.</translation>
    </message>
    <message>
        <source>The input device has delivered only silence for %1 s. It may be switched off, or the wrong one: another one can be chosen when the recording is stopped.</source>
        <translation>El dispositivo de entrada solo ha entregado silencio durante %1 s. Puede que esté apagado o que no sea el correcto: se puede elegir otro cuando se detenga la grabación.</translation>
    </message>
    <message>
        <source>The disk is nearly full: there is room for %1 of recording.</source>
        <translation>El disco está casi lleno: hay espacio para %1 de grabación.</translation>
    </message>
    <message>
        <source>%1 s are missing: the disk was full. The recording went on in another file.</source>
        <translation>Faltan %1 s: el disco estaba lleno. La grabación continuó en otro archivo.</translation>
    </message>
    <message>
        <source>An earlier recording could not be finished. It is kept at</source>
        <comment>a path follows</comment>
        <translation>No se pudo finalizar una grabación anterior. Se conserva en</translation>
    </message>
    <message numerus="yes">
        <source>%n earlier recordings could not be finished. They are kept in</source>
        <comment>a path follows</comment>
        <translation>
            <numerusform>No se pudo finalizar %n grabación anterior. Se conserva en</numerusform>
            <numerusform>No se pudieron finalizar %n grabaciones anteriores. Se conservan en</numerusform>
        </translation>
    </message>
    <message>
        <source>Resume Record</source>
        <translation>Reanudar grabación</translation>
    </message>
    <message>
        <source>the input unit cannot be opened</source>
        <translation>no se puede abrir la unidad de entrada de audio</translation>
    </message>
    <message>
        <source>there is no input unit</source>
        <translation>no hay ninguna unidad de entrada de audio</translation>
    </message>
    <message>
        <source>the unit&apos;s output cannot be switched off</source>
        <translation>no se puede desactivar la salida de la unidad de audio</translation>
    </message>
    <message>
        <source>the device cannot be used</source>
        <translation>no se puede usar el dispositivo</translation>
    </message>
    <message>
        <source>the device accepts no callback</source>
        <translation>el dispositivo no acepta ninguna función de retorno</translation>
    </message>
    <message>
        <source>the device&apos;s format cannot be read</source>
        <translation>no se puede leer el formato del dispositivo</translation>
    </message>
    <message>
        <source>the device&apos;s format cannot be captured</source>
        <translation>no se puede capturar el formato del dispositivo</translation>
    </message>
    <message>
        <source>the device&apos;s buffer size cannot be read</source>
        <translation>no se puede leer el tamaño del búfer del dispositivo</translation>
    </message>
    <message>
        <source>the unit cannot be initialised</source>
        <translation>no se puede inicializar la unidad de audio</translation>
    </message>
    <message>
        <source>not enough memory</source>
        <translation>memoria insuficiente</translation>
    </message>
    <message>
        <source>the device cannot be started</source>
        <translation>no se puede iniciar el dispositivo</translation>
    </message>
    <message>
        <source>Less than a minute left on this disk</source>
        <translation>Queda menos de un minuto en este disco</translation>
    </message>
    <message>
        <source>About %1 min left on this disk</source>
        <translation>Quedan alrededor de %1 min en este disco</translation>
    </message>
    <message>
        <source>About %1 h %2 min left on this disk</source>
        <translation>Quedan alrededor de %1 h %2 min en este disco</translation>
    </message>
    <message>
        <source>%1 is complete, but its tracks could not be kept: %2.</source>
        <translation>%1 está completa, pero no se pudieron conservar sus pistas: %2.</translation>
    </message>
    <message>
        <source>the disk is nearly full</source>
        <translation>el disco está casi lleno</translation>
    </message>
    <message>
        <source>%1 could not be saved beside its recording: %2.</source>
        <translation>No se pudo guardar %1 junto a su grabación: %2.</translation>
    </message>
    <message>
        <source>An interrupted recording is complete now:</source>
        <comment>a path follows</comment>
        <translation>Una grabación interrumpida ya está completa:</translation>
    </message>
    <message>
        <source>the recorded sound of a source is missing</source>
        <translation>falta el sonido grabado de una fuente</translation>
    </message>
</context>
<context>
    <name>RecordPanel</name>
    <message>
        <source>Nothing is being recorded.</source>
        <translation>No se está grabando nada.</translation>
    </message>
    <message>
        <source>Choose the input, computer audio, or both first.</source>
        <translation>Elija antes la entrada, el audio del equipo o ambos.</translation>
    </message>
    <message>
        <source>Select a recording first. Nothing is played while recording.</source>
        <translation>Seleccione antes una grabación. Mientras se graba no se reproduce nada.</translation>
    </message>
    <message>
        <source>The sources stay as they are until the recording ends.</source>
        <translation>Las fuentes se quedan como están hasta que termine la grabación.</translation>
    </message>
    <message>
        <source>Record the chosen input device</source>
        <translation>Graba el dispositivo de entrada elegido</translation>
    </message>
    <message>
        <source>Record what the computer plays</source>
        <translation>Graba lo que reproduce el equipo</translation>
    </message>
    <message>
        <source>%1 s lost</source>
        <translation>%1 s perdidos</translation>
    </message>
    <message>
        <source>No frames lost</source>
        <translation>Sin tramas perdidas</translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation>%1 tramas</translation>
    </message>
    <message>
        <source>Nothing is being recorded</source>
        <translation>No se está grabando nada</translation>
    </message>
    <message>
        <source>No sound server</source>
        <translation>Sin servidor de sonido</translation>
    </message>
    <message>
        <source>No input device</source>
        <translation>Sin dispositivo de entrada</translation>
    </message>
    <message>
        <source>Waiting for the first sound of computer audio</source>
        <translation>Esperando el primer sonido del equipo</translation>
    </message>
    <message>
        <source>No sound server: a test tone is recorded</source>
        <translation>Sin servidor de sonido: se graba un tono de prueba</translation>
    </message>
    <message>
        <source>No device</source>
        <translation>Sin dispositivo</translation>
    </message>
    <message>
        <source>No input device was found.</source>
        <translation>No se encontró ningún dispositivo de entrada.</translation>
    </message>
    <message>
        <source>The input is not recorded: check the box first.</source>
        <translation>La entrada no se graba: marque antes la casilla.</translation>
    </message>
    <message>
        <source>Cut to another recording</source>
        <translation>Cortar y seguir en otra grabación</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>%1 – Sonaphex</source>
        <translation>%1 – Sonaphex</translation>
    </message>
</context>
<context>
    <name>RecordPrograms</name>
    <message>
        <source>%1 and %2</source>
        <translation>%1 y %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Only %1</source>
        <translation>Solo %1</translation>
    </message>
    <message>
        <source>Everything but %1</source>
        <translation>Todo menos %1</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation>A la espera de %1</translation>
    </message>
</context>
<context>
    <name>RecordStateController</name>
    <message>
        <source>A recording is running.</source>
        <translation>Hay una grabación en curso.</translation>
    </message>
    <message>
        <source>%1 is off: %2.</source>
        <translation>%1 está desactivado: %2.</translation>
    </message>
    <message>
        <source>Computer audio (%1) has been silent for %2 s: nothing plays.</source>
        <translation>El audio del equipo (%1) lleva %2 s en silencio: no suena nada.</translation>
    </message>
    <message>
        <source>another recording of computer audio runs with other programs</source>
        <translation>otra grabación del audio del equipo está en marcha con otros programas</translation>
    </message>
    <message>
        <source>the computer-audio device cannot choose programs; remove it and install it again</source>
        <translation>el dispositivo de audio del equipo no puede elegir programas; quítelo y vuelva a instalarlo</translation>
    </message>
</context>
<context>
    <name>RecordingJoin</name>
    <message>
        <source>The recordings were not joined.</source>
        <translation>No se unieron las grabaciones.</translation>
    </message>
    <message>
        <source>The file is no longer there: %1</source>
        <translation>El archivo ya no está ahí: %1</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>Unir</translation>
    </message>
    <message>
        <source>This path exists, please change the path or name.</source>
        <translation>Esta ruta ya existe; cambie la ruta o el nombre.</translation>
    </message>
    <message numerus="yes">
        <source>Joining %n recordings…</source>
        <translation>
            <numerusform>Uniendo %n grabación…</numerusform>
            <numerusform>Uniendo %n grabaciones…</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” was made. The recordings are not parts of one recording, so the sound was encoded again.</source>
        <translation>Se creó «%1». Las grabaciones no son partes de una misma grabación, así que el sonido se volvió a codificar.</translation>
    </message>
    <message>
        <source>“%1” was made. The sound was copied without encoding it again.</source>
        <translation>Se creó «%1». El sonido se copió sin volver a codificarlo.</translation>
    </message>
</context>
<context>
    <name>RecordingNotifier</name>
    <message>
        <source>“%1” was not kept: it is too short.</source>
        <translation>«%1» no se conservó: es demasiado corta.</translation>
    </message>
    <message>
        <source>Recording not kept</source>
        <translation>Grabación no conservada</translation>
    </message>
    <message>
        <source>About the recording</source>
        <translation>Sobre la grabación</translation>
    </message>
    <message>
        <source>Recording cut; the next one runs</source>
        <translation>Grabación cortada; sigue la siguiente</translation>
    </message>
    <message>
        <source>Recording finished</source>
        <translation>Grabación terminada</translation>
    </message>
    <message numerus="yes">
        <source>%n recordings finished</source>
        <translation>
            <numerusform>%n grabación terminada</numerusform>
            <numerusform>%n grabaciones terminadas</numerusform>
        </translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
</context>
<context>
    <name>RecordingRename</name>
    <message>
        <source>the title is empty</source>
        <translation>el título está vacío</translation>
    </message>
    <message>
        <source>a file name cannot contain “/”</source>
        <translation>un nombre de archivo no puede contener «/»</translation>
    </message>
    <message>
        <source>the title has a character that no file name can contain</source>
        <translation>el título tiene un carácter que ningún nombre de archivo puede contener</translation>
    </message>
    <message>
        <source>the title is longer than a file name can be</source>
        <translation>el título es más largo de lo que puede ser un nombre de archivo</translation>
    </message>
    <message>
        <source>there is already a file named “%1” in its folder</source>
        <translation>ya hay un archivo llamado «%1» en su carpeta</translation>
    </message>
    <message>
        <source>The file keeps its name “%1”: %2.</source>
        <translation>El archivo conserva su nombre «%1»: %2.</translation>
    </message>
</context>
<context>
    <name>RingtoneMaker</name>
    <message>
        <source>%1 cannot be read</source>
        <translation>no se puede leer %1</translation>
    </message>
    <message>
        <source>no folder for ringtones is known</source>
        <translation>no se conoce ninguna carpeta para los tonos</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>no se puede escribir %1</translation>
    </message>
</context>
<context>
    <name>RingtoneMakerBackgroundView</name>
    <message>
        <source>Ringtone</source>
        <translation>Tono de llamada</translation>
    </message>
</context>
<context>
    <name>RingtoneMakerViewController</name>
    <message>
        <source>Outline of the recording</source>
        <translation>Forma de onda de la grabación</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Reproducir</translation>
    </message>
    <message>
        <source>Pre&amp;view</source>
        <translation>Pree&amp;scucha</translation>
    </message>
    <message>
        <source>Play the selection again and again</source>
        <translation>Reproduce la selección una y otra vez</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>&amp;Desde</translation>
    </message>
    <message>
        <source>Begin of the selection</source>
        <translation>Inicio de la selección</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>&amp;Hasta</translation>
    </message>
    <message>
        <source>End of the selection</source>
        <translation>Fin de la selección</translation>
    </message>
    <message>
        <source>Length of the selection</source>
        <translation>Duración de la selección</translation>
    </message>
    <message>
        <source>Fade &amp;in</source>
        <translation>Fundido &amp;inicial</translation>
    </message>
    <message>
        <source>Seconds of the fade-in</source>
        <translation>Segundos del fundido inicial</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Fade &amp;out</source>
        <translation>Fundido &amp;final</translation>
    </message>
    <message>
        <source>Seconds of the fade-out</source>
        <translation>Segundos del fundido final</translation>
    </message>
    <message>
        <source>The boxes are for listening. The ringtone fades over these times; under one second there is no fade.</source>
        <translation>Las casillas solo afectan a la escucha. El tono lleva fundidos de estas duraciones; con menos de un segundo no hay fundido.</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>Open in the player when &amp;done</source>
        <translation>Abrir en el reproductor al &amp;terminar</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Make Ringtone</source>
        <translation>&amp;Crear tono</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pausar</translation>
    </message>
    <message>
        <source>Ringtone from “%1”</source>
        <translation>Tono de «%1»</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>This recording cannot be read: %1</source>
        <translation>No se puede leer esta grabación: %1</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 segundos</translation>
    </message>
    <message>
        <source>This recording cannot be read.</source>
        <translation>No se puede leer esta grabación.</translation>
    </message>
    <message>
        <source>Select a part of the recording first.</source>
        <translation>Seleccione antes una parte de la grabación.</translation>
    </message>
    <message>
        <source>This recording cannot be played.</source>
        <translation>No se puede reproducir esta grabación.</translation>
    </message>
    <message>
        <source>This recording cannot be played: %1</source>
        <translation>No se puede reproducir esta grabación: %1</translation>
    </message>
    <message>
        <source>The ringtone could not be made.</source>
        <translation>No se pudo crear el tono.</translation>
    </message>
    <message>
        <source>The recording is damaged. The ringtone is silent where it could not be read.</source>
        <translation>La grabación está dañada. El tono queda en silencio donde no se pudo leer.</translation>
    </message>
    <message>
        <source>No player could be opened for “%1”.</source>
        <translation>No se pudo abrir ningún reproductor para «%1».</translation>
    </message>
    <message>
        <source>The ringtone is in the library.</source>
        <translation>El tono está en la biblioteca.</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Search titles, artists and albums</source>
        <translation>Buscar en títulos, artistas y álbumes</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Borrar la búsqueda</translation>
    </message>
</context>
<context>
    <name>SplitEditView</name>
    <message>
        <source>Cut %1 of %2, %3</source>
        <translation>Corte %1 de %2, %3</translation>
    </message>
    <message>
        <source>Cuts of the recording</source>
        <translation>Cortes de la grabación</translation>
    </message>
    <message>
        <source>Play position</source>
        <translation>Posición de reproducción</translation>
    </message>
    <message>
        <source>Current cut</source>
        <translation>Corte actual</translation>
    </message>
</context>
<context>
    <name>SplitPartsModel</name>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Duración</translation>
    </message>
</context>
<context>
    <name>SplitWnd</name>
    <message>
        <source>Split at Silences</source>
        <translation>Dividir en los silencios</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Grabación</translation>
    </message>
    <message>
        <source>Play time</source>
        <translation>Tiempo de reproducción</translation>
    </message>
    <message>
        <source>Visible part of the recording</source>
        <translation>Parte visible de la grabación</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>&amp;Listen to Cut</source>
        <translation>Es&amp;cuchar corte</translation>
    </message>
    <message>
        <source>Play from two seconds before the cut to two seconds behind it</source>
        <translation>Reproduce desde dos segundos antes del corte hasta dos segundos después</translation>
    </message>
    <message>
        <source>&amp;Add Cut</source>
        <translation>&amp;Añadir corte</translation>
    </message>
    <message>
        <source>Cut at the play position</source>
        <translation>Corta en la posición de reproducción</translation>
    </message>
    <message>
        <source>Re&amp;move Cut</source>
        <translation>&amp;Quitar corte</translation>
    </message>
    <message>
        <source>Take the current cut away</source>
        <translation>Quita el corte actual</translation>
    </message>
    <message>
        <source>Rese&amp;t Cuts</source>
        <translation>Res&amp;tablecer</translation>
    </message>
    <message>
        <source>Take back the cuts that you added, moved and removed</source>
        <translation>Deshace los cortes que añadió, movió y quitó</translation>
    </message>
    <message>
        <source>L&amp;evel</source>
        <translation>&amp;Nivel</translation>
    </message>
    <message>
        <source>Level below which it is silent, in decibels</source>
        <translation>Nivel por debajo del cual hay silencio, en decibelios</translation>
    </message>
    <message>
        <source>Value of Level</source>
        <translation>Valor del nivel</translation>
    </message>
    <message>
        <source>Len&amp;gth</source>
        <translation>D&amp;uración</translation>
    </message>
    <message>
        <source>Length of the shortest silence, in tenths of a second</source>
        <translation>Duración del silencio más corto, en décimas de segundo</translation>
    </message>
    <message>
        <source>Value of Length</source>
        <translation>Valor de la duración</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Partes</translation>
    </message>
    <message>
        <source>&amp;Delete the recording when its parts are written</source>
        <translation>&amp;Eliminar la grabación una vez escritas sus partes</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Split</source>
        <translation>&amp;Dividir</translation>
    </message>
</context>
<context>
    <name>SplitWndController</name>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Searching for silences… %1 %</source>
        <translation>Buscando silencios… %1 %</translation>
    </message>
    <message>
        <source>No silence found at this level. Choose a higher level, or add cuts yourself.</source>
        <translation>No se encontró ningún silencio con este nivel. Elija un nivel más alto o añada cortes manualmente.</translation>
    </message>
    <message>
        <source>No silence is long enough. The longest silence found: %1 s.</source>
        <translation>Ningún silencio es lo bastante largo. Silencio más largo encontrado: %1 s.</translation>
    </message>
    <message>
        <source>One cut. The longest silence found: %1 s.</source>
        <translation>Un corte. Silencio más largo encontrado: %1 s.</translation>
    </message>
    <message numerus="yes">
        <source>%n cuts. The longest silence found: %1 s.</source>
        <translation>
            <numerusform>%n corte. Silencio más largo encontrado: %1 s.</numerusform>
            <numerusform>%n cortes. Silencio más largo encontrado: %1 s.</numerusform>
        </translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Writing the parts…</source>
        <translation>Escribiendo las partes…</translation>
    </message>
    <message>
        <source>The recording was not split.</source>
        <translation>No se dividió la grabación.</translation>
    </message>
</context>
<context>
    <name>SpokenField</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>StatusBarItem</name>
    <message>
        <source>Cut to Another Recording</source>
        <translation>Cortar y seguir en otra</translation>
    </message>
    <message>
        <source>Show Sonaphex</source>
        <translation>Mostrar Sonaphex</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Sonaphex: %1</source>
        <translation>Sonaphex: %1</translation>
    </message>
</context>
<context>
    <name>Theme</name>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
</context>
<context>
    <name>TrackListModel</name>
    <message>
        <source>The file is no longer there.</source>
        <translation>El archivo ya no está ahí.</translation>
    </message>
    <message>
        <source>Only files with a tick are burned</source>
        <translation>Solo se graban en el disco los archivos marcados</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>Grabar</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Duración</translation>
    </message>
</context>
<context>
    <name>WaitWnd</name>
    <message>
        <source>Please wait</source>
        <translation>Espere</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
</TS>
