<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AcceptDragImageView</name>
    <message>
        <source>Cover</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A picture; Delete removes it</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Alerts</name>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppDelegate</name>
    <message>
        <source>The file cannot be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is already running</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Audio</name>
    <message>
        <source>the device is not there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the sound server refused to capture the device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not installed: no sound server answers and none can be started</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the private sound server did not start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the private sound server came up without its devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no sound server answers: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the sound server went away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this unit captures only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the unit is running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no device number %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has no input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no device is set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the unit delivers 32-bit float, one buffer a channel, at the device&apos;s rate only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no device or no callback is set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the input is not enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the unit is not initialised</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the sound server accepts connections but does not answer. Restart it (systemctl --user restart pipewire) and try again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the stream failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the device went away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no sound server answers: a private one was started, its input device is a tone</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AudioDataSourceView</name>
    <message>
        <source>&amp;Tick or Untick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove from This List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file itself stays</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No music yet. Press “Add Files…” or drop sound files here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AudioEditTimeView</name>
    <message>
        <source>Play position</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AudioFilterController</name>
    <message>
        <source>Short Recordings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recordings of at &amp;most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 shows every recording.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recordings of at most this many seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Short recordings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ticked recordings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 ticked, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to move these items to the trash?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AudioPlayProgressView</name>
    <message>
        <source>Playback position</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AudioPointerLineView</name>
    <message>
        <source>Play pointer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AudioRecordWaveView</name>
    <message>
        <source>Level history</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AudioRowDelegate</name>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AudioTableModel</name>
    <message>
        <source>The file is no longer there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Playing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Artist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Album</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AudioTrimEditView</name>
    <message>
        <source>Range to keep</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AudioTrimSave</name>
    <message>
        <source>The file “%1” is no longer there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file “%1” is still being recorded to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The range is shorter than a tenth of a second.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no room left on the disk.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tags could not be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the new file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It was stopped before the end.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AudioTrimWnd</name>
    <message>
        <source>Trim</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Begin of the range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length of the range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End of the range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the begin of the range to the play position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the end of the range to the play position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;review</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AudioTrimWndController</name>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The range is shorter than a tenth of a second.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is being played.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording cannot be saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording was not saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waring:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This path exists, please change the path or name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Converting Audio......</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to replace &quot;%1&quot; audio file.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AudioWaveEditView</name>
    <message>
        <source>Outline</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AudioWaveTrimView</name>
    <message>
        <source>Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag the edges or the middle. Left and Right move the selection, with Control its begin, with Alt its end; with Shift by a second.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>from %1 to %2, %3 seconds</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AudioWaveViewController</name>
    <message>
        <source>Recording state</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Artist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch between recording and playback</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the next notice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What can be done about the notice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dismiss this notice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free Space …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notice %1 of %2. Show the next one</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BurnControl</name>
    <message>
        <source>there is no drive</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BurnState</name>
    <message>
        <source>Waiting for the import Music File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for the inserted Disc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Is not blank, Please erase the Disc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Is not blank, Please replace the Disc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disc space not enough for music</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready to burn</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CDBurnWnd</name>
    <message>
        <source>Burn to Disc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Drive:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eject the disc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problem of the drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items and size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Eject when done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Burn</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CDBurnWndController</name>
    <message>
        <source>There is nothing to burn.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tick the files that are to become tracks, then press Burn.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eject the disc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no disc in the drive.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source> %n Items     Size: %1 MB</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CaptureComputerAudio</name>
    <message>
        <source>%1: the driver does not run on this machine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: no such program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the driver was started, but its device did not appear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the system audio device is being installed or removed already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no way to get administrator rights</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the driver is missing from the program&apos;s resources</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>--%1: %2 is not a time in seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1: %2 is not a whole number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no drive that writes discs (--image FILE writes a disc image)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: there is no such drive (&quot;sonaphex drives&quot; lists them)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the drive is busy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: there is no disc in the drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the disc is not blank: erase it, or put another one in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the disc is not blank: put another one in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: no burn can be made with this drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; nothing was burned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the burn failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>burn takes the files that become tracks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--image takes the name of a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--image and --drive exclude each other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>burn sound files as an audio CD, one track each, or write a disc image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The drive, by its name or its path (&quot;sonaphex drives&quot; lists them).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the first drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write FILE.cue and FILE.bin instead of a disc. Existing files are never replaced.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eject the disc when it is done.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Burn two tracks and eject the disc.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write concert.cue and concert.bin.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (default: %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>usage: sonaphex %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>options:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>examples:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>usage: sonaphex            open the window
       sonaphex FILE       open the window and trim an audio file
       sonaphex COMMAND    do one thing and end

commands:
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
&quot;sonaphex COMMAND --help&quot; lists the options of a command, &quot;sonaphex --version&quot; the version.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no sound server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>standard output could not be written: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>idle</source>
        <comment>no recording</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>armed</source>
        <comment>waits for the first sound</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>recording</source>
        <comment>now</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>paused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>control takes a command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: no such command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the program is not running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>act on the running program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start a recording in the open window, or stop it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the state of the running program for a script.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stopped before the end: nothing was written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be converted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: it ends at second %2, there is nothing from second %3 on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the source is damaged, what could be read was converted: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>convert takes a source and a target</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--type is wav, m4a or caf</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--to is a tenth of a second or more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--to is before --from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>copy a range of an audio file into a new file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The type of the new file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>from the ending of DST</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Begin at second S of the source.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End at second S of the source.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fade in over S seconds; a fade shorter than one second is left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fade out over S seconds; a fade shorter than one second is left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repeat the range until the new file is S seconds long.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the length of the range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace DST when it exists.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy ten and a half seconds into a WAVE file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repeat ten seconds for half a minute, with fades.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>devices takes no names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n channels</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 Hz, what the computer plays</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2 Hz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no input devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>default output: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <comment>output device</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>list the input devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List the devices for a script.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>installed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>installed: no</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>loaded: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>loaded: no</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>loaded: no (no sound server answers)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the driver stays as it is while the window records: stop the recording first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the driver cannot be loaded: no sound server answers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the driver was not installed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the driver was not removed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>driver takes one of status, install, remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>show, install or remove the device that carries what the computer plays</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install the device and load it. Asks for the administrator&apos;s password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>busy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the drive is not ready yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no disc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>disc</source>
        <comment>of unknown kind</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, not blank, can be erased</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, not blank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, blank, %2 min %3 s of audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>drives takes no names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>list the drives that write discs, and what is in them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List the drives for a script.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no input device &quot;%1&quot;: there is none at all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no input device &quot;%1&quot;: there are %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>join takes two files or more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>join needs --to with the file to write</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: there is no such file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: there is no such folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>make one recording of several, in the given order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording to write. An existing file is kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Join two parts of one recording without encoding them again. Other files are decoded and encoded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, but the running program does not know this request: it is another version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, but the library could not be saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be added to the library</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>file</source>
        <comment>the path of a recording</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>key</source>
        <comment>names an entry of the library</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>recordings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ringtones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the running program does not know this request: it is another version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no entry has the key %1 (nothing was removed)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the files are deleted, but the library could not be saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>library knows list and remove, not %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>library remove takes the keys of entries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>list recordings and ringtones, or remove some with their files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List both collections with the key of each entry.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove an entry and delete its file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>manual takes nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>completions takes one of bash, zsh, fish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>print the manual page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the manual page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>print the completions for a shell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install the completions for the current user&apos;s bash.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: is a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: no such folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: that path is not a regular file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: exists already (--overwrite replaces it)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the folder %1 cannot be created</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the folder %1 cannot be written: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>record takes options only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--for takes a time above 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--pre-roll takes at most %1 milliseconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--folder takes a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>without an input device and without --computer there is nothing to record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>record an input device, what the computer plays, or both into .m4a files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record the input device with this name, UID or id; none records no input device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the device and the choice stored in the preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record what the computer plays.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop after S seconds of recorded sound, over all files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>until Control+C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When waiting for the first sound, give up after S seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Begin a new file after a silence of MS milliseconds of computer audio.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>as in the preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When waiting for the first sound, begin MS milliseconds before it, at most 5000.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drop a recording shorter than S seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put the recordings into DIR, which is made when it is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record ten seconds of the input device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record a named device into the current folder until Control+C.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record what the computer plays, one file for each song, and give up when nothing plays for a minute.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a recording could not be finished</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>computer audio: its driver is not installed (see sonaphex driver install)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no input device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no source to record: name one with --input or --computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing can be recorded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>waiting for the first sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>finishing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no sound came: nothing was recorded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one recording was shorter than the filter&apos;s time and was not kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n recordings were shorter than the filter&apos;s time and were not kept</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1: what was recorded is kept in %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is made, but the running program does not know this request: it is another version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is made, but the library could not be saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: it ends at second %2, --to is %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stopped before the end: no ringtone was made</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the source is damaged, the ringtone is silent where it could not be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ringtone takes one file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ringtone needs --from and --to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--to is not after --from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>make a ringtone from a range of a recording and add it to the library</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Begin at second S of the recording.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End at second S of the recording.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make a ringtone of this half minute.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>longest silence found: %1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: no silence of %2 s; the longest one has %3 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>split takes one file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>split needs --silence with at least %1 milliseconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--level takes decibels from -120 to below 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cut a recording into several at its silences, without encoding it again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut in the middle of each silence of at least MS milliseconds, 50 or more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A silence lies below DB decibels of full scale, from -120 to below 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put the parts into DIR.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the folder of the recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only list the cuts and the longest silence; write nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make a 1.m4a, a 2.m4a and so on beside a.m4a, which stays as it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See where the cuts would be.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print one JSON document instead of text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <comment>cover</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>title:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>artist:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>album:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>year:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>genre:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>artwork:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the artwork of %1 could not be written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tag takes one file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--year: %1 is not a number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>print or write the tags and the cover of an MPEG-4 audio file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write this title. An empty text removes the tag; the same holds for the other texts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write this artist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write this album.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write this year; 0 removes the tag.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write this genre.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the cover from this picture file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename the file after its title, unless the name is taken or not possible.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the tags.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write a title and a cover.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write a title and name the file Morning.m4a.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: This path exists, please change the path or name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the file is being played</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is trimmed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>trim takes one file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>trim takes --from, --to or both</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--to must be at least a tenth of a second after --from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--save-as names no file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cut a recording down to a range, in its place or into a new file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write a new file and leave the recording as it is. An existing file is kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the recording is replaced</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut off the first two and a half seconds and all after a minute.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy ten seconds into a new recording.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1: %n values are too few for a picture</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>waveform takes one file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stopped before the end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is damaged, what could be read is shown: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>print ten values of a file&apos;s outline for each second</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw the outline into a PNG file instead of printing it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace FILE when it exists.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw the outline of a recording.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: no such command and no such file (see sonaphex help)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>burning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2 being finished</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>disc image</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Control</name>
    <message>
        <source>%1: no such folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: no such file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the folder cannot be created</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file or its tags could not be written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This path exists, please change the path or name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stopped before the end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a part of it is damaged and cannot be measured</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ControlRequests</name>
    <message>
        <source>the program is ending</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no source to record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing is being recorded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown request</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no path</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConvertingTipView</name>
    <message>
        <source>Converting notice</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>the password prompt was cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pkexec is not installed: administrator rights cannot be requested</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>administrator rights were not given</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the command ended with status %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DesktopMain</name>
    <message>
        <source>%1 was not opened: the running program does not answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is already running, but does not answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing can be recorded or played.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sonaphex cannot start.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Disc</name>
    <message>
        <source>%1: its rate cannot be converted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: contains no audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: no such folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: exists already, and an image replaces no file; choose another name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: a cue sheet cannot name a file with quotation marks or line ends; choose another name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a file cannot be read: nothing was burned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is nothing to burn: no file is ticked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an audio CD holds at most %1 tracks, these are %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write Disc Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The image cannot be written there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no path was given for the disc image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the disk is full: the image needs %2, %3 are free</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: cannot be written: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: is not an audio file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it was stopped before the end: nothing was written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the drive cannot be opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: there is no disc in the drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the disc is not blank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the drive does not get ready</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: this disc cannot be written to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the disc cannot be written like this: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the drive gave no reason</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it was stopped before the end: the disc may be unusable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it was stopped before the first sector: the disc is as it was</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: an audio CD needs a CD-R or a CD-RW, this is a %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>disc of another kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the layout of the disc could not be made</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (the disc is unusable)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the burn failed: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: this disc cannot be erased</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the erase failed: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no right to use %1: join the group that owns it (often &quot;cdrom&quot;) and log in again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another program uses the drive, or its disc is mounted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the drive is gone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: no such file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: is not a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: no right to read it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the file ends earlier than when it was measured</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is not enough room on the disc: the tracks need %1 minutes (%2 sectors), %3 minutes (%4 sectors) are free</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditWindows</name>
    <message>
        <source>%1 cannot be opened: close the open dialog first.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FilteredAudioModel</name>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Foundation</name>
    <message>
        <source>%1: another program is using it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is a link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 belongs to another user</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is open to others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a part of the program is missing: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is already answered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not a socket of this user</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the items of a list</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is a link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>belongs to another user</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is larger than %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HelpPages</name>
    <message>
        <source>Sonaphex support</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is recorded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look whether a source is chosen in the main window: an input device, the computer&apos;s audio, or both. In a terminal, &lt;code&gt;sonaphex devices&lt;/code&gt; lists the input devices that the sound server offers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A recording of the computer&apos;s audio alone begins with the first sound that the computer plays.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A recording is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recordings shorter than the time that is set in the preferences are dropped; switch the filter off to keep them. What could not be finished, for instance on a full disk, lies in &lt;code&gt;~/.local/share/com.korvane.Sonaphex/Unfinished&lt;/code&gt;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The computer&apos;s audio cannot be chosen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It needs a small add-on: see &lt;a href=&quot;computer-audio.html&quot;&gt;recording the computer&apos;s audio&lt;/a&gt;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings are gone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>They are in &lt;code&gt;~/.config/com.korvane.Sonaphex.plist&lt;/code&gt;. A damaged file is kept beside it under a name that ends in &lt;code&gt;.damaged-&lt;/code&gt; and the date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording the computer&apos;s audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The add-on is an input device named “Korvane System Audio” that hears what the default output plays. It is a small program of the user&apos;s session that speaks to the sound server; it changes nothing in what you hear, and it never becomes the default microphone of other programs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Install in the preferences window, or run &lt;code&gt;sonaphex driver install&lt;/code&gt;. The password of an administrator is asked for once: the add-on is installed for all users of the computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Remove in the same place, or run &lt;code&gt;sonaphex driver remove&lt;/code&gt;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ID3EditSave</name>
    <message>
        <source>The file “%1” is no longer there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The cover of “%1” could not be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tags of “%1” could not be written</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ID3EditWnd</name>
    <message>
        <source>Tags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a picture for the cover</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drop a picture here. Drag it out to remove it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;rtist:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Artist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Al&amp;bum:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Album</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Year:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Genre:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Genre</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ID3EditWndController</name>
    <message>
        <source>Choose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file is not a picture.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not everything could be saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID3 converter......</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeyNames</name>
    <message>
        <source>Control</source>
        <comment>a key of the keyboard</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Super</source>
        <comment>a key of the keyboard</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shift</source>
        <comment>a key of the keyboard</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt</source>
        <comment>a key of the keyboard</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeybordShortcutTextView</name>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The desktop has no keys for this. Choose some in its settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These keys are set in the desktop&apos;s settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No keys in the desktop&apos;s settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click, then press the keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press the keys</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LibraryOutlineModel</name>
    <message numerus="yes">
        <source>%n recording(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Library</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LibraryPresenter</name>
    <message>
        <source>The file is no longer there: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be played.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be played: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder of “%1” could not be shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No player could be opened for “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainMenus</name>
    <message>
        <source>&amp;Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cut to Another Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close this file and go on in a new one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record the &amp;Input Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record Computer &amp;Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit &amp;Tags…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title, artist, album and cover of the recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>T&amp;rim…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep a part of the recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make a &amp;Ringtone…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut a ringtone out of the recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the selected recordings and their files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Search…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search titles, artists and albums</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Library</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play the &amp;Selected Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play from its beginning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back %1 Seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forward %1 Seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;how in Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the file in the file manager</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open in Player</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the file in your music player</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Burn to Disc…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make an audio CD of this list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find Short Recordings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find recordings that are too short to keep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Switch the Display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Level of the recording, or position of the playback</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the Next &amp;Notice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Several notices stand in the display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Dismiss All Notices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Support Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Computer-Audio &amp;Add-on Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Install the Computer-Audio Device…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;bout Sonaphex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trim</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ringtone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Tags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Burn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open in player</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the input, computer audio, or both first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is being recorded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is installed already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device stays as it is until the recording ends.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sources stay as they are until the recording ends.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is playing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Answer the Notice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Answer the Notice: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no other notice.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This notice offers nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no notice.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a recording first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a recording first. Nothing is played while recording.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arrives in a later version of Sonaphex.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing in this list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Sonaphex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sonaphex %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Records what the computer plays, what a microphone hears, or both.

© 2026 The Sonaphex authors. Free software under the GNU General Public License, version 3 or later.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWnd</name>
    <message>
        <source>Start or stop recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause or resume recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut to another recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record the chosen input device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record the input device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Computer audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record what the computer plays</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record computer audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lost frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Library</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWndController</name>
    <message>
        <source>The computer-audio device is installed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The computer-audio device is installed. What the computer plays is recorded from now on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” was not added: it is shorter than %2 s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 selected, %2 together</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No title, artist or album here has “%1” in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording appears here when it has ended.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing here yet. Press the red button to make your first recording.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ringtones that you make of your recordings appear here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recordings that you make now appear here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Media</name>
    <message>
        <source>cannot be read from the beginning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>audio files cannot be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not an audio file, or too damaged to be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file contains no audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its audio format is not supported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no decoder for its audio format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its audio cannot be decoded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>damaged at frame %1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>channels that cannot be mixed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a finished recording of Sonaphex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its index is damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the AAC encoder failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the encoder is missing: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the encoder does not take this rate or channel count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the rate cannot be converted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this format cannot be written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>too deeply nested</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a box of impossible size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>too many boxes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a box larger than the one around it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a table that is larger than its box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not an MPEG-4 file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file ends within its index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file has no index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a packet of the recording cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stopped before the end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be played</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the sound server went away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no sound server answers: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the sound server refused the stream</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its tags cannot be written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot write the tags of %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot read the tags of %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its tags cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot read the image %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is neither a JPEG nor a PNG image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot write the artwork of %1 to %2: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another program is changing it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its index cannot hold more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is cut off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its index is too large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>that path is not a regular file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its last box has no size</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MediaLibrary</name>
    <message>
        <source>Record Library</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Newly Recorded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Recorded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ringtone Library</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Newly Ringtone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Ringtone</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Platform::PortalAutostart</name>
    <message>
        <source>Sonaphex waits in the status bar.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the desktop did not allow it</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PreferenceWnd</name>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Recordings:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder of recordings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the folder of recordings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the folder of recordings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rin&amp;gtones:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder of ringtones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the folder of ringtones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;how</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the folder of ringtones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Split computer audio at a silence of</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Split computer audio at silences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length of silence in milliseconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>milliseconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Leave out recordings shorter than</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave out short recordings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shortest recording in seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Begin before the first sound by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time before the first sound in milliseconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A recording of computer audio waits for the first sound. It then contains this much of the time before it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Computer audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State of the computer-audio device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install the computer-audio device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the computer-audio device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Working on the computer-audio device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problem of the computer-audio device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shortcuts from any program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Star&amp;t or stop:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shortcut for start and stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pause or resume:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shortcut for pause and resume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New recording:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shortcut for a new recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use the &amp;Defaults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use the default shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How to bind keys on this desktop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commands to bind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>N&amp;otify when a recording ends in the background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notify when a recording ends in the background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A notification tells of finished and cut recordings, and of problems, while the window is not in front.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>St&amp;art with the desktop, hidden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start with the desktop, hidden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sonaphex waits in the status bar after you log in.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PreferenceWndController</name>
    <message>
        <source>Start or stop the recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause or resume the recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start a new recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sonaphex cannot be started with the desktop.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sonaphex is still started with the desktop.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is split at a silence: check the box first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All recordings are kept: check the box first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installing the computer-audio device…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removing the computer-audio device…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The computer-audio device is installed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The computer-audio device is not installed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is installed already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing to remove.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This desktop does not allow global shortcuts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This desktop does not allow global shortcuts. Bind these commands to keys in the desktop&apos;s own keyboard settings:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You cannot save files in the folder. Read and write privilege is needed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not insert the system audio device, Please try it again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProcessWnd</name>
    <message>
        <source>Burn Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Burn progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Burn state</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProcessWndController</name>
    <message>
        <source>A burn cannot be stopped before it has written 4 %.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stops the burn; the disc is then unusable.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Burn Progress:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure to end the task?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please waiting a moment ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Burning Disc...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The sound server does not answer yet. Waiting for it…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do Not Wait</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device stays as it is until the recording ends.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Record</name>
    <message>
        <source>%1 cannot be written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rec..</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rec</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for the first sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paused %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finishing the recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>         Audio File Converting
         Please Wait ..</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>         Audio File Converting
         Please Wait </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>two paths</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the reason is unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording is kept, and moved by the next start when there is room, at</source>
        <comment>a path follows</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording is kept at</source>
        <comment>a path follows</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is kept, and moved by the next start when there is room, at</source>
        <comment>the source of a recording; a path follows</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is kept at</source>
        <comment>the source of a recording; a path follows</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What it was made from is kept, and moved by the next start when there is room, at</source>
        <comment>a path follows</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What it was made from is kept at</source>
        <comment>a path follows</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A part of the recording could not be written (error %1). What was written is kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 could not be saved in “%3”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be finished: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One source of %1 could not be read (%2) and is missing in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be mixed: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk is nearly full: %1 could not be mixed, which needs %2 MB; %3 MB are left.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be encoded: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A part of %1 could not be read (%2) and is missing in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be tagged. Its audio is complete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>less than a minute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>about 1 minute</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>about %n minutes</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Waring:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The application is reading your USB headset data, please do not unplug your USB headset, if you want to unplug your USB headset please turn off this application first， Otherwise give your computer some trouble.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2. Nothing is heard from it until it can.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is gone. There is no other input device: connect one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is gone. %2 takes its place until it is back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The input device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the input device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Computer audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>computer audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add-on required to record the system audio.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KorvanAudioDevice is easy to use, it simply accept system audio data, allowing any audio application to send and receive audio with no other support needed. KorvanAudioDevice is free, and runs on Linux computers. This driver will only be used by Sonaphex.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please stop your recording.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is being recorded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The input device does not deliver. Nothing is recorded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Computer audio does not deliver. Nothing is recorded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no input device. Nothing is recorded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The input device does not deliver (%1). Nothing is recorded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is off: it did not start. This recording goes without it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is off: it did not start (%2). This recording goes without it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not being recorded: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording could not be split (%1). It continues in the same file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sound server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 went away. The wait for the first sound continues when it is back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 went away. The recording so far is kept and continues when it is back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is back. The wait for the first sound goes on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 s are missing: %2 was away. The recording goes on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 s are missing (%2 frames): the computer was too busy to take them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk is full. Nothing more is recorded until there is room; what was recorded is kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. Nothing more is recorded; what was recorded is kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Computer audio has been silent for %1 s: nothing plays.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Computer audio has been silent for %1 s: nothing plays on %2, the output that is recorded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The input device is muted: only silence has been recorded for %1 s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The input device has delivered only silence for %1 s. It may be switched off, or the wrong one: another one can be chosen when the recording is stopped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk is nearly full: there is room for %1 of recording.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 s are missing: the disk was full. The recording went on in another file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An earlier recording could not be finished. It is kept at</source>
        <comment>a path follows</comment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n earlier recordings could not be finished. They are kept in</source>
        <comment>a path follows</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Resume Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the input unit cannot be opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no input unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the unit&apos;s output cannot be switched off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the device cannot be used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the device accepts no callback</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the device&apos;s format cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the device&apos;s format cannot be captured</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the device&apos;s buffer size cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the unit cannot be initialised</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not enough memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the device cannot be started</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecordPanel</name>
    <message>
        <source>Nothing is being recorded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the input, computer audio, or both first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a recording first. Nothing is played while recording.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sources stay as they are until the recording ends.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record the chosen input device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record what the computer plays</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 s lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No frames lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is being recorded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No sound server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No input device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for the first sound of computer audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No sound server: a test tone is recorded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No input device was found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The input is not recorded: check the box first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut to another recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 – Sonaphex</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecordStateController</name>
    <message>
        <source>A recording is running.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecordingNotifier</name>
    <message>
        <source>“%1” was not kept: it is too short.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording not kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About the recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording cut; the next one runs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording finished</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n recordings finished</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecordingRename</name>
    <message>
        <source>the title is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a file name cannot contain “/”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the title has a character that no file name can contain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the title is longer than a file name can be</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is already a file named “%1” in its folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file keeps its name “%1”: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RingtoneMaker</name>
    <message>
        <source>%1 cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no folder for ringtones is known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RingtoneMakerBackgroundView</name>
    <message>
        <source>Ringtone</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RingtoneMakerViewController</name>
    <message>
        <source>Outline of the recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pre&amp;view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play the selection again and again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Begin of the selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End of the selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length of the selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fade &amp;in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seconds of the fade-in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fade &amp;out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seconds of the fade-out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The boxes are for listening. The ringtone fades over these times; under one second there is no fade.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problem</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open in the player when &amp;done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Make Ringtone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ringtone from “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This recording cannot be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This recording cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a part of the recording first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This recording cannot be played.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This recording cannot be played: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The ringtone could not be made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording is damaged. The ringtone is silent where it could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No player could be opened for “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The ringtone is in the library.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search titles, artists and albums</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatusBarItem</name>
    <message>
        <source>Cut to Another Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Sonaphex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sonaphex: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TrackListModel</name>
    <message>
        <source>The file is no longer there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only files with a tick are burned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Burn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WaitWnd</name>
    <message>
        <source>Please wait</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
