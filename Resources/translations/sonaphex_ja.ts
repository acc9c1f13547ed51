<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AcceptDragImageView</name>
    <message>
        <source>Cover</source>
        <translation>カバー</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>画像なし</translation>
    </message>
    <message>
        <source>A picture; Delete removes it</source>
        <translation>画像あり。Delete キーで削除します</translation>
    </message>
</context>
<context>
    <name>Alerts</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>Announcement</name>
    <message>
        <source>Announcements</source>
        <translation>お知らせ</translation>
    </message>
</context>
<context>
    <name>AppDelegate</name>
    <message>
        <source>The file cannot be opened.</source>
        <translation>ファイルを開けません。</translation>
    </message>
    <message>
        <source>it is already running</source>
        <translation>すでに実行中です</translation>
    </message>
</context>
<context>
    <name>Audio</name>
    <message>
        <source>the device is not there</source>
        <translation>デバイスがありません</translation>
    </message>
    <message>
        <source>the sound server refused to capture the device</source>
        <translation>サウンドサーバーがデバイスの取り込みを拒否しました</translation>
    </message>
    <message>
        <source>%1 is not installed: no sound server answers and none can be started</source>
        <translation>%1 がインストールされていません: サウンドサーバーの応答がなく、起動もできません</translation>
    </message>
    <message>
        <source>the private sound server did not start</source>
        <translation>専用のサウンドサーバーが起動しませんでした</translation>
    </message>
    <message>
        <source>the private sound server came up without its devices</source>
        <translation>専用のサウンドサーバーは起動しましたが、デバイスがありません</translation>
    </message>
    <message>
        <source>no sound server answers: %1</source>
        <translation>サウンドサーバーの応答がありません: %1</translation>
    </message>
    <message>
        <source>the sound server went away</source>
        <translation>サウンドサーバーが停止しました</translation>
    </message>
    <message>
        <source>this unit captures only</source>
        <translation>このユニットは取り込み専用です</translation>
    </message>
    <message>
        <source>the unit is running</source>
        <translation>ユニットは動作中です</translation>
    </message>
    <message>
        <source>there is no device number %1</source>
        <translation>番号 %1 のデバイスはありません</translation>
    </message>
    <message>
        <source>%1 has no input</source>
        <translation>%1 には入力がありません</translation>
    </message>
    <message>
        <source>no device is set</source>
        <translation>デバイスが設定されていません</translation>
    </message>
    <message>
        <source>the unit delivers 32-bit float, one buffer a channel, at the device&apos;s rate only</source>
        <translation>ユニットが出力できるのは、デバイスのサンプルレートの 32 ビット浮動小数点、チャンネルごとに 1 バッファーの形式だけです</translation>
    </message>
    <message>
        <source>no device or no callback is set</source>
        <translation>デバイスまたはコールバックが設定されていません</translation>
    </message>
    <message>
        <source>the input is not enabled</source>
        <translation>入力が有効になっていません</translation>
    </message>
    <message>
        <source>the unit is not initialised</source>
        <translation>ユニットが初期化されていません</translation>
    </message>
    <message>
        <source>the sound server accepts connections but does not answer. Restart it (systemctl --user restart pipewire) and try again</source>
        <translation>サウンドサーバーは接続を受け付けますが、応答しません。再起動して (systemctl --user restart pipewire) もう一度試してください</translation>
    </message>
    <message>
        <source>the stream failed</source>
        <translation>ストリームが失敗しました</translation>
    </message>
    <message>
        <source>the device went away</source>
        <translation>デバイスが使えなくなりました</translation>
    </message>
    <message>
        <source>no sound server answers: a private one was started, its input device is a tone</source>
        <translation>サウンドサーバーの応答がありません: 専用のサーバーを起動しました。その入力デバイスはテスト音です</translation>
    </message>
</context>
<context>
    <name>AudioDataSourceView</name>
    <message>
        <source>&amp;Tick or Untick</source>
        <translation>チェックの切り替え(&amp;T)</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>上へ移動(&amp;U)</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>下へ移動(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Remove from This List</source>
        <translation>この一覧から取り除く(&amp;R)</translation>
    </message>
    <message>
        <source>The file itself stays</source>
        <translation>ファイル自体は残ります</translation>
    </message>
    <message>
        <source>No music yet. Press “Add Files…” or drop sound files here.</source>
        <translation>まだ曲がありません。「ファイルを追加…」を押すか、音声ファイルをここにドロップしてください。</translation>
    </message>
</context>
<context>
    <name>AudioEditTimeView</name>
    <message>
        <source>Play position</source>
        <translation>再生位置</translation>
    </message>
</context>
<context>
    <name>AudioFilterController</name>
    <message>
        <source>Short Recordings</source>
        <translation>短い録音</translation>
    </message>
    <message>
        <source>Recordings of at &amp;most</source>
        <translation>録音の長さの上限(&amp;M)</translation>
    </message>
    <message>
        <source>0 shows every recording.</source>
        <translation>0 ですべての録音を表示します。</translation>
    </message>
    <message>
        <source>Recordings of at most this many seconds</source>
        <translation>録音の長さの上限 (秒)</translation>
    </message>
    <message>
        <source> seconds</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source>Short recordings</source>
        <translation>短い録音</translation>
    </message>
    <message>
        <source>Ticked recordings</source>
        <translation>チェックした録音</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>削除(&amp;R)</translation>
    </message>
    <message>
        <source>%1 ticked, %2</source>
        <translation>%1 件をチェック、%2</translation>
    </message>
    <message>
        <source>Do you want to move these items to the trash?</source>
        <translation>これらの項目をゴミ箱に移動しますか?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>AudioPlayProgressView</name>
    <message>
        <source>Playback position</source>
        <translation>再生位置</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2 中 %1</translation>
    </message>
</context>
<context>
    <name>AudioPointerLineView</name>
    <message>
        <source>Play pointer</source>
        <translation>再生ポインター</translation>
    </message>
</context>
<context>
    <name>AudioRecordWaveView</name>
    <message>
        <source>Recording level</source>
        <translation>録音レベル</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 %, clipped</source>
        <translation>%1 %、クリップ</translation>
    </message>
</context>
<context>
    <name>AudioRowDelegate</name>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
</context>
<context>
    <name>AudioTableModel</name>
    <message>
        <source>The file is no longer there.</source>
        <translation>ファイルはもうありません。</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>再生中</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>アーティスト</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>アルバム</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>パス</translation>
    </message>
    <message>
        <source>No mark</source>
        <translation>印なし</translation>
    </message>
</context>
<context>
    <name>AudioTrimEditView</name>
    <message>
        <source>Range to keep</source>
        <translation>残す範囲</translation>
    </message>
    <message>
        <source>Play position</source>
        <translation>再生位置</translation>
    </message>
    <message>
        <source>Begin of the range to keep</source>
        <translation>残す範囲の始まり</translation>
    </message>
    <message>
        <source>End of the range to keep</source>
        <translation>残す範囲の終わり</translation>
    </message>
</context>
<context>
    <name>AudioTrimSave</name>
    <message>
        <source>The file “%1” is no longer there.</source>
        <translation>ファイル「%1」はもうありません。</translation>
    </message>
    <message>
        <source>The file “%1” is still being recorded to.</source>
        <translation>ファイル「%1」はまだ録音中です。</translation>
    </message>
    <message>
        <source>The range is shorter than a tenth of a second.</source>
        <translation>範囲が 0.1 秒より短くなっています。</translation>
    </message>
    <message>
        <source>There is no room left on the disk.</source>
        <translation>ディスクに空き容量がありません。</translation>
    </message>
    <message>
        <source>The tags could not be written.</source>
        <translation>タグを書き込めませんでした。</translation>
    </message>
    <message>
        <source>the new file</source>
        <translation>新しいファイル</translation>
    </message>
    <message>
        <source>It was stopped before the end.</source>
        <translation>途中で中止しました。</translation>
    </message>
</context>
<context>
    <name>AudioTrimWnd</name>
    <message>
        <source>Trim</source>
        <translation>トリミング</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>録音</translation>
    </message>
    <message>
        <source>Play time</source>
        <translation>再生時間</translation>
    </message>
    <message>
        <source>Begin of the range</source>
        <translation>範囲の先頭</translation>
    </message>
    <message>
        <source>Length of the range</source>
        <translation>範囲の長さ</translation>
    </message>
    <message>
        <source>End of the range</source>
        <translation>範囲の末尾</translation>
    </message>
    <message>
        <source>Set here</source>
        <translation>ここに設定</translation>
    </message>
    <message>
        <source>Move the begin of the range to the play position</source>
        <translation>範囲の先頭を再生位置に移動</translation>
    </message>
    <message>
        <source>Move the end of the range to the play position</source>
        <translation>範囲の末尾を再生位置に移動</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>P&amp;review</source>
        <translation>プレビュー(&amp;R)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>名前を付けて保存(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
</context>
<context>
    <name>AudioTrimWndController</name>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>The range is shorter than a tenth of a second.</source>
        <translation>範囲が 0.1 秒より短くなっています。</translation>
    </message>
    <message>
        <source>The file is being played.</source>
        <translation>ファイルは再生中です。</translation>
    </message>
    <message>
        <source>The recording cannot be saved.</source>
        <translation>録音を保存できません。</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>名前を付けて保存</translation>
    </message>
    <message>
        <source>The recording was not saved.</source>
        <translation>録音は保存されませんでした。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Waring:</source>
        <translation>警告:</translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation>警告:</translation>
    </message>
    <message>
        <source>This path exists, please change the path or name.</source>
        <translation>このパスはすでに存在します。パスまたは名前を変更してください。</translation>
    </message>
    <message>
        <source>Converting Audio......</source>
        <translation>音声を変換しています......</translation>
    </message>
    <message>
        <source>Do you want to replace &quot;%1&quot; audio file.</source>
        <translation>音声ファイル「%1」を置き換えますか?</translation>
    </message>
</context>
<context>
    <name>AudioWaveEditView</name>
    <message>
        <source>Outline</source>
        <translation>波形</translation>
    </message>
</context>
<context>
    <name>AudioWaveTrimView</name>
    <message>
        <source>Selection</source>
        <translation>選択範囲</translation>
    </message>
    <message>
        <source>Drag the edges or the middle. Left and Right move the selection, with Control its begin, with Alt its end; with Shift by a second.</source>
        <translation>端または中央をドラッグします。左右の矢印キーで選択範囲が、Control と一緒に押すと先頭が、Alt と一緒に押すと末尾が動きます。Shift を加えると 1 秒ずつ動きます。</translation>
    </message>
    <message>
        <source>from %1 to %2, %3 seconds</source>
        <translation>%1 から %2 まで、%3 秒</translation>
    </message>
</context>
<context>
    <name>AudioWaveViewController</name>
    <message>
        <source>Recording state</source>
        <translation>録音の状態</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>入力</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>アーティスト</translation>
    </message>
    <message>
        <source>Switch between recording and playback</source>
        <translation>録音と再生の表示を切り替え</translation>
    </message>
    <message>
        <source>Show the next notice</source>
        <translation>次のお知らせを表示</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>お知らせ</translation>
    </message>
    <message>
        <source>What can be done about the notice</source>
        <translation>お知らせへの対処</translation>
    </message>
    <message>
        <source>Dismiss this notice</source>
        <translation>このお知らせを閉じる</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Choose Device</source>
        <translation>デバイスを選択</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>ミュート解除</translation>
    </message>
    <message>
        <source>Free Space …</source>
        <translation>空き容量を増やす…</translation>
    </message>
    <message>
        <source>Notice %1 of %2. Show the next one</source>
        <translation>お知らせ %1/%2。次を表示</translation>
    </message>
    <message>
        <source>Recording time</source>
        <translation>録音時間</translation>
    </message>
    <message>
        <source>Played</source>
        <translation>再生済み</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>残り</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Waiting for the first sound</source>
        <translation>最初の音を待っています</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>録音中</translation>
    </message>
    <message>
        <source>Nothing is being recorded</source>
        <translation>何も録音されていません</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>Finishing the recording</source>
        <translation>録音を仕上げています</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>録音していません</translation>
    </message>
</context>
<context>
    <name>BalanceSave</name>
    <message>
        <source>It was stopped before the end.</source>
        <translation>途中で中止しました。</translation>
    </message>
    <message>
        <source>The file “%1” is no longer there.</source>
        <translation>ファイル「%1」はもうありません。</translation>
    </message>
    <message>
        <source>The file “%1” is still being recorded to.</source>
        <translation>ファイル「%1」はまだ録音中です。</translation>
    </message>
    <message>
        <source>The sum of both tracks is too loud and would be clipped.</source>
        <translation>両方のトラックを合わせた音が大きすぎて、クリップします。</translation>
    </message>
    <message>
        <source>the new file</source>
        <translation>新しいファイル</translation>
    </message>
</context>
<context>
    <name>BalanceView</name>
    <message>
        <source>Play position</source>
        <translation>再生位置</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>入力</translation>
    </message>
    <message>
        <source>Computer audio</source>
        <translation>コンピューター音声</translation>
    </message>
</context>
<context>
    <name>BalanceWnd</name>
    <message>
        <source>Balance</source>
        <translation>音量バランス</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>録音</translation>
    </message>
    <message>
        <source>Play time</source>
        <translation>再生時間</translation>
    </message>
    <message>
        <source>&amp;Input</source>
        <translation>入力(&amp;I)</translation>
    </message>
    <message>
        <source>Gain of the input</source>
        <translation>入力のゲイン</translation>
    </message>
    <message>
        <source> dB</source>
        <translation> dB</translation>
    </message>
    <message>
        <source>&amp;Computer audio</source>
        <translation>コンピューター音声(&amp;C)</translation>
    </message>
    <message>
        <source>Gain of computer audio</source>
        <translation>コンピューター音声のゲイン</translation>
    </message>
    <message>
        <source>&amp;Delay of computer audio</source>
        <translation>コンピューター音声の遅延(&amp;D)</translation>
    </message>
    <message>
        <source>Delay of computer audio</source>
        <translation>コンピューター音声の遅延</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>&amp;Lower to Fit</source>
        <translation>収まるまで下げる(&amp;L)</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進捗</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>リセット(&amp;R)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>名前を付けて保存(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
</context>
<context>
    <name>BalanceWndController</name>
    <message>
        <source>Silent</source>
        <comment>a track that is not in the mix</comment>
        <translation>無音</translation>
    </message>
    <message>
        <source>The tracks cannot be played.</source>
        <translation>トラックを再生できません。</translation>
    </message>
    <message>
        <source>Both gains and the delay are 0.</source>
        <translation>両方のゲインと遅延は 0 です。</translation>
    </message>
    <message>
        <source>Measuring the loudest point …</source>
        <translation>ピークを測定しています…</translation>
    </message>
    <message>
        <source>Too loud by %1 dB: the loudest parts would be clipped.</source>
        <translation>%1 dB 大きすぎます: 最も大きい部分がクリップします。</translation>
    </message>
    <message>
        <source>The mix is silent.</source>
        <translation>ミックスは無音です。</translation>
    </message>
    <message>
        <source>Loudest point: %1 dB below the limit</source>
        <translation>ピーク: 上限より %1 dB 下</translation>
    </message>
    <message>
        <source>Lowers both gains until nothing is clipped</source>
        <translation>クリップしなくなるまで両方のゲインを下げます</translation>
    </message>
    <message>
        <source>Nothing would be clipped.</source>
        <translation>クリップする部分はありません。</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>The file is being played.</source>
        <translation>ファイルは再生中です。</translation>
    </message>
    <message>
        <source>The recording cannot be saved.</source>
        <translation>録音を保存できません。</translation>
    </message>
    <message>
        <source>Do you want to replace &quot;%1&quot; with the new mix? Its tracks stay.</source>
        <translation>「%1」を新しいミックスで置き換えますか? トラックはそのまま残ります。</translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation>警告:</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>名前を付けて保存</translation>
    </message>
    <message>
        <source>This path exists, please change the path or name.</source>
        <translation>このパスはすでに存在します。パスまたは名前を変更してください。</translation>
    </message>
    <message>
        <source>Lower Both by %1 dB</source>
        <translation>両方を %1 dB 下げる</translation>
    </message>
    <message>
        <source>The mix is too loud.</source>
        <translation>ミックスの音が大きすぎます。</translation>
    </message>
    <message>
        <source>Its loudest parts would be clipped. Lower both gains, and nothing is clipped.</source>
        <translation>最も大きい部分がクリップします。両方のゲインを下げると、クリップしなくなります。</translation>
    </message>
    <message>
        <source>The recording was not saved.</source>
        <translation>録音は保存されませんでした。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>The new mix is saved.</source>
        <translation>新しいミックスを保存しました。</translation>
    </message>
</context>
<context>
    <name>BurnControl</name>
    <message>
        <source>there is no drive</source>
        <translation>ドライブがありません</translation>
    </message>
</context>
<context>
    <name>BurnState</name>
    <message>
        <source>Waiting for the import Music File</source>
        <translation>音楽ファイルの追加を待っています</translation>
    </message>
    <message>
        <source>Waiting for the inserted Disc</source>
        <translation>ディスクの挿入を待っています</translation>
    </message>
    <message>
        <source>Is not blank, Please erase the Disc</source>
        <translation>空のディスクではありません。消去してください</translation>
    </message>
    <message>
        <source>Is not blank, Please replace the Disc</source>
        <translation>空のディスクではありません。交換してください</translation>
    </message>
    <message>
        <source>Disc space not enough for music</source>
        <translation>ディスクの空き容量が足りません</translation>
    </message>
    <message>
        <source>Ready to burn</source>
        <translation>書き込みの準備ができました</translation>
    </message>
</context>
<context>
    <name>CDBurnWnd</name>
    <message>
        <source>Burn to Disc</source>
        <translation>ディスクへの書き込み</translation>
    </message>
    <message>
        <source>&amp;Drive:</source>
        <translation>ドライブ(&amp;D):</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>ドライブ</translation>
    </message>
    <message>
        <source>Eject the disc</source>
        <translation>ディスクを取り出す</translation>
    </message>
    <message>
        <source>Problem of the drive</source>
        <translation>ドライブの問題</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>トラック</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>ファイルを追加(&amp;A)…</translation>
    </message>
    <message>
        <source>Items and size</source>
        <translation>項目数とサイズ</translation>
    </message>
    <message>
        <source>Total time</source>
        <translation>合計時間</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>&amp;Eject when done</source>
        <translation>完了後に取り出す(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Burn</source>
        <translation>書き込み(&amp;B)</translation>
    </message>
</context>
<context>
    <name>CDBurnWndController</name>
    <message>
        <source>There is nothing to burn.</source>
        <translation>書き込むものがありません。</translation>
    </message>
    <message>
        <source>Tick the files that are to become tracks, then press Burn.</source>
        <translation>トラックにするファイルをチェックして、「書き込み」を押してください。</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>時間: %1</translation>
    </message>
    <message>
        <source>Eject the disc</source>
        <translation>ディスクを取り出す</translation>
    </message>
    <message>
        <source>There is no disc in the drive.</source>
        <translation>ドライブにディスクがありません。</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>選択</translation>
    </message>
    <message numerus="yes">
        <source> %n Items     Size: %1 MB</source>
        <translation>
            <numerusform> %n 項目     サイズ: %1 MB</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CaptureComputerAudio</name>
    <message>
        <source>%1: the driver does not run on this machine</source>
        <translation>%1: ドライバーはこのマシンで動作しません</translation>
    </message>
    <message>
        <source>%1: no such program</source>
        <translation>%1: そのようなプログラムはありません</translation>
    </message>
    <message>
        <source>the driver was started, but its device did not appear</source>
        <translation>ドライバーを起動しましたが、デバイスが現れませんでした</translation>
    </message>
    <message>
        <source>the system audio device is being installed or removed already</source>
        <translation>システム音声デバイスはすでにインストール中または削除中です</translation>
    </message>
    <message>
        <source>there is no way to get administrator rights</source>
        <translation>管理者権限を取得する方法がありません</translation>
    </message>
    <message>
        <source>%1: the driver is missing from the program&apos;s resources</source>
        <translation>%1: プログラムのリソースにドライバーがありません</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>--%1: %2 is not a time in seconds</source>
        <translation>--%1: %2 は有効な秒数ではありません</translation>
    </message>
    <message>
        <source>--%1: %2 is not a whole number</source>
        <translation>--%1: %2 は整数ではありません</translation>
    </message>
    <message>
        <source>there is no drive that writes discs (--image FILE writes a disc image)</source>
        <translation>ディスクに書き込めるドライブがありません (--image FILE でディスクイメージを書き込めます)</translation>
    </message>
    <message>
        <source>%1: there is no such drive (&quot;sonaphex drives&quot; lists them)</source>
        <translation>%1: そのようなドライブはありません (「sonaphex drives」で一覧を表示できます)</translation>
    </message>
    <message>
        <source>%1: the drive is busy</source>
        <translation>%1: ドライブは使用中です</translation>
    </message>
    <message>
        <source>%1: there is no disc in the drive</source>
        <translation>%1: ドライブにディスクがありません</translation>
    </message>
    <message>
        <source>%1: the disc is not blank: erase it, or put another one in</source>
        <translation>%1: ディスクが空ではありません: 消去するか、別のディスクを入れてください</translation>
    </message>
    <message>
        <source>%1: the disc is not blank: put another one in</source>
        <translation>%1: ディスクが空ではありません: 別のディスクを入れてください</translation>
    </message>
    <message>
        <source>%1: no burn can be made with this drive</source>
        <translation>%1: このドライブでは書き込みができません</translation>
    </message>
    <message>
        <source>%1; nothing was burned</source>
        <translation>%1: 何も書き込まれませんでした</translation>
    </message>
    <message>
        <source>the burn failed</source>
        <translation>書き込みに失敗しました</translation>
    </message>
    <message>
        <source>burn takes the files that become tracks</source>
        <translation>burn にはトラックにするファイルを指定してください</translation>
    </message>
    <message>
        <source>--image takes the name of a file</source>
        <translation>--image にはファイル名を指定してください</translation>
    </message>
    <message>
        <source>--image and --drive exclude each other</source>
        <translation>--image と --drive は同時に指定できません</translation>
    </message>
    <message>
        <source>burn sound files as an audio CD, one track each, or write a disc image</source>
        <translation>音声ファイルを 1 つ 1 トラックのオーディオ CD として書き込むか、ディスクイメージを書き出します</translation>
    </message>
    <message>
        <source>The drive, by its name or its path (&quot;sonaphex drives&quot; lists them).</source>
        <translation>使用するドライブの名前またはパス (「sonaphex drives」で一覧を表示できます)。</translation>
    </message>
    <message>
        <source>the first drive</source>
        <translation>最初のドライブ</translation>
    </message>
    <message>
        <source>Write FILE.cue and FILE.bin instead of a disc. Existing files are never replaced.</source>
        <translation>ディスクの代わりに FILE.cue と FILE.bin を書き出します。既存のファイルは置き換えません。</translation>
    </message>
    <message>
        <source>Eject the disc when it is done.</source>
        <translation>完了後にディスクを取り出します。</translation>
    </message>
    <message>
        <source>Burn two tracks and eject the disc.</source>
        <translation>2 つのトラックを書き込み、ディスクを取り出します。</translation>
    </message>
    <message>
        <source>Write concert.cue and concert.bin.</source>
        <translation>concert.cue と concert.bin を書き出します。</translation>
    </message>
    <message>
        <source>%1 (default: %2)</source>
        <translation>%1 (既定値: %2)</translation>
    </message>
    <message>
        <source>usage: sonaphex %1</source>
        <translation>使い方: sonaphex %1</translation>
    </message>
    <message>
        <source>options:</source>
        <translation>オプション:</translation>
    </message>
    <message>
        <source>examples:</source>
        <translation>例:</translation>
    </message>
    <message>
        <source>usage: sonaphex            open the window
       sonaphex FILE       open the window and trim an audio file
       sonaphex COMMAND    do one thing and end

commands:
</source>
        <translation>使い方: sonaphex            ウィンドウを開きます
        sonaphex FILE       ウィンドウを開き、音声ファイルをトリミングします
        sonaphex COMMAND    1 つの処理を行って終了します

コマンド:
</translation>
    </message>
    <message>
        <source>
&quot;sonaphex COMMAND --help&quot; lists the options of a command, &quot;sonaphex --version&quot; the version.
</source>
        <translation>
「sonaphex COMMAND --help」でコマンドのオプション、「sonaphex --version」でバージョンを表示します。
</translation>
    </message>
    <message>
        <source>there is no sound server</source>
        <translation>サウンドサーバーがありません</translation>
    </message>
    <message>
        <source>standard output could not be written: %1</source>
        <translation>標準出力に書き込めませんでした: %1</translation>
    </message>
    <message>
        <source>idle</source>
        <comment>no recording</comment>
        <translation>停止中</translation>
    </message>
    <message>
        <source>armed</source>
        <comment>waits for the first sound</comment>
        <translation>待機中</translation>
    </message>
    <message>
        <source>recording</source>
        <comment>now</comment>
        <translation>録音中</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>control takes a command</source>
        <translation>control にはコマンドを指定してください</translation>
    </message>
    <message>
        <source>%1: no such command</source>
        <translation>%1: そのようなコマンドはありません</translation>
    </message>
    <message>
        <source>the program is not running</source>
        <translation>プログラムは実行されていません</translation>
    </message>
    <message>
        <source>act on the running program</source>
        <translation>実行中のプログラムを操作します</translation>
    </message>
    <message>
        <source>Start a recording in the open window, or stop it.</source>
        <translation>開いているウィンドウで録音を開始または停止します。</translation>
    </message>
    <message>
        <source>Print the state of the running program for a script.</source>
        <translation>実行中のプログラムの状態をスクリプト向けに出力します。</translation>
    </message>
    <message>
        <source>stopped before the end: nothing was written</source>
        <translation>途中で中止しました: 何も書き込まれていません</translation>
    </message>
    <message>
        <source>%1 cannot be converted</source>
        <translation>%1 を変換できません</translation>
    </message>
    <message>
        <source>%1: it ends at second %2, there is nothing from second %3 on</source>
        <translation>%1: 終わりは %2 秒です。%3 秒以降には何もありません</translation>
    </message>
    <message>
        <source>the source is damaged, what could be read was converted: %1</source>
        <translation>元のファイルが破損しています。読み取れた部分を変換しました: %1</translation>
    </message>
    <message>
        <source>convert takes a source and a target</source>
        <translation>convert には変換元と変換先を指定してください</translation>
    </message>
    <message>
        <source>--type is wav, m4a or caf</source>
        <translation>--type は wav、m4a、caf のどれかです</translation>
    </message>
    <message>
        <source>--to is a tenth of a second or more</source>
        <translation>--to は 0.1 秒以上にしてください</translation>
    </message>
    <message>
        <source>--to is before --from</source>
        <translation>--to が --from より前です</translation>
    </message>
    <message>
        <source>copy a range of an audio file into a new file</source>
        <translation>音声ファイルの範囲を新しいファイルにコピーします</translation>
    </message>
    <message>
        <source>The type of the new file.</source>
        <translation>新しいファイルの形式。</translation>
    </message>
    <message>
        <source>from the ending of DST</source>
        <translation>DST の拡張子による</translation>
    </message>
    <message>
        <source>Begin at second S of the source.</source>
        <translation>元のファイルの S 秒の位置から始めます。</translation>
    </message>
    <message>
        <source>End at second S of the source.</source>
        <translation>元のファイルの S 秒の位置で終えます。</translation>
    </message>
    <message>
        <source>its end</source>
        <translation>ファイルの終わり</translation>
    </message>
    <message>
        <source>Fade in over S seconds; a fade shorter than one second is left out.</source>
        <translation>S 秒かけてフェードインします。1 秒未満のフェードは省略します。</translation>
    </message>
    <message>
        <source>Fade out over S seconds; a fade shorter than one second is left out.</source>
        <translation>S 秒かけてフェードアウトします。1 秒未満のフェードは省略します。</translation>
    </message>
    <message>
        <source>Repeat the range until the new file is S seconds long.</source>
        <translation>新しいファイルが S 秒の長さになるまで範囲を繰り返します。</translation>
    </message>
    <message>
        <source>the length of the range</source>
        <translation>範囲の長さ</translation>
    </message>
    <message>
        <source>Replace DST when it exists.</source>
        <translation>DST が存在する場合に置き換えます。</translation>
    </message>
    <message>
        <source>Copy ten and a half seconds into a WAVE file.</source>
        <translation>10.5 秒間を WAVE ファイルにコピーします。</translation>
    </message>
    <message>
        <source>Repeat ten seconds for half a minute, with fades.</source>
        <translation>10 秒間をフェード付きで 30 秒になるまで繰り返します。</translation>
    </message>
    <message>
        <source>devices takes no names</source>
        <translation>devices に名前は指定できません</translation>
    </message>
    <message>
        <source>1 channel</source>
        <translation>1 チャンネル</translation>
    </message>
    <message numerus="yes">
        <source>%n channels</source>
        <translation>
            <numerusform>%n チャンネル</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 Hz, what the computer plays</source>
        <translation>%1、%2 Hz、コンピューターの再生音</translation>
    </message>
    <message>
        <source>%1, %2 Hz</source>
        <translation>%1、%2 Hz</translation>
    </message>
    <message>
        <source>no input devices</source>
        <translation>入力デバイスなし</translation>
    </message>
    <message>
        <source>default output: %1</source>
        <translation>既定の出力: %1</translation>
    </message>
    <message>
        <source>none</source>
        <comment>output device</comment>
        <translation>なし</translation>
    </message>
    <message>
        <source>list the input devices</source>
        <translation>入力デバイスを一覧表示します</translation>
    </message>
    <message>
        <source>List the devices for a script.</source>
        <translation>デバイスの一覧をスクリプト向けに出力します。</translation>
    </message>
    <message>
        <source>installed: %1</source>
        <translation>インストール済み: %1</translation>
    </message>
    <message>
        <source>installed: no</source>
        <translation>インストール済み: いいえ</translation>
    </message>
    <message>
        <source>loaded: %1</source>
        <translation>読み込み済み: %1</translation>
    </message>
    <message>
        <source>loaded: no</source>
        <translation>読み込み済み: いいえ</translation>
    </message>
    <message>
        <source>loaded: no (no sound server answers)</source>
        <translation>読み込み済み: いいえ (サウンドサーバーの応答がありません)</translation>
    </message>
    <message>
        <source>the driver stays as it is while the window records: stop the recording first</source>
        <translation>ウィンドウで録音中はドライバーを変更できません: 先に録音を停止してください</translation>
    </message>
    <message>
        <source>the driver cannot be loaded: no sound server answers</source>
        <translation>ドライバーを読み込めません: サウンドサーバーの応答がありません</translation>
    </message>
    <message>
        <source>the driver was not installed: %1</source>
        <translation>ドライバーをインストールできませんでした: %1</translation>
    </message>
    <message>
        <source>the driver was not removed: %1</source>
        <translation>ドライバーを削除できませんでした: %1</translation>
    </message>
    <message>
        <source>driver takes one of status, install, remove</source>
        <translation>driver には status、install、remove のどれかを指定してください</translation>
    </message>
    <message>
        <source>show, install or remove the device that carries what the computer plays</source>
        <translation>コンピューターの再生音を取り込むデバイスを表示、インストール、または削除します</translation>
    </message>
    <message>
        <source>Install the device and load it. Asks for the administrator&apos;s password.</source>
        <translation>デバイスをインストールして読み込みます。管理者のパスワードが必要です。</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>使用中</translation>
    </message>
    <message>
        <source>the drive is not ready yet</source>
        <translation>ドライブの準備がまだできていません</translation>
    </message>
    <message>
        <source>no disc</source>
        <translation>ディスクなし</translation>
    </message>
    <message>
        <source>disc</source>
        <comment>of unknown kind</comment>
        <translation>ディスク</translation>
    </message>
    <message>
        <source>%1, not blank, can be erased</source>
        <translation>%1、空ではない、消去可能</translation>
    </message>
    <message>
        <source>%1, not blank</source>
        <translation>%1、空ではない</translation>
    </message>
    <message>
        <source>%1, blank, %2 min %3 s of audio</source>
        <translation>%1、空、音声 %2 分 %3 秒</translation>
    </message>
    <message>
        <source>drives takes no names</source>
        <translation>drives に名前は指定できません</translation>
    </message>
    <message>
        <source>list the drives that write discs, and what is in them</source>
        <translation>ディスクに書き込めるドライブと、入っているディスクを一覧表示します</translation>
    </message>
    <message>
        <source>List the drives for a script.</source>
        <translation>ドライブの一覧をスクリプト向けに出力します。</translation>
    </message>
    <message>
        <source>there is no input device &quot;%1&quot;: there is none at all</source>
        <translation>入力デバイス「%1」はありません: 入力デバイスが 1 つもありません</translation>
    </message>
    <message>
        <source>there is no input device &quot;%1&quot;: there are %2</source>
        <translation>入力デバイス「%1」はありません: 使えるのは %2 です</translation>
    </message>
    <message>
        <source>join takes two files or more</source>
        <translation>join には 2 つ以上のファイルを指定してください</translation>
    </message>
    <message>
        <source>join needs --to with the file to write</source>
        <translation>join には書き出すファイルを --to で指定してください</translation>
    </message>
    <message>
        <source>%1: there is no such file</source>
        <translation>%1: そのようなファイルはありません</translation>
    </message>
    <message>
        <source>%1: there is no such folder</source>
        <translation>%1: そのようなフォルダーはありません</translation>
    </message>
    <message>
        <source>make one recording of several, in the given order</source>
        <translation>複数の録音を指定した順に 1 つにまとめます</translation>
    </message>
    <message>
        <source>The recording to write. An existing file is kept.</source>
        <translation>書き出す録音。既存のファイルは残します。</translation>
    </message>
    <message>
        <source>Join two parts of one recording without encoding them again. Other files are decoded and encoded.</source>
        <translation>1 つの録音の 2 つの部分を、再エンコードせずに連結します。ほかのファイルはデコードしてエンコードし直します。</translation>
    </message>
    <message>
        <source>%1, but the running program does not know this request: it is another version</source>
        <translation>%1。ただし、実行中のプログラムはこの要求に対応していません: 別のバージョンです</translation>
    </message>
    <message>
        <source>%1, but the library could not be saved</source>
        <translation>%1。ただし、ライブラリを保存できませんでした</translation>
    </message>
    <message>
        <source>%1 could not be added to the library</source>
        <translation>%1 をライブラリに追加できませんでした</translation>
    </message>
    <message>
        <source>file</source>
        <comment>the path of a recording</comment>
        <translation>パス</translation>
    </message>
    <message>
        <source>key</source>
        <comment>names an entry of the library</comment>
        <translation>キー</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1 (見つかりません)</translation>
    </message>
    <message>
        <source>recordings</source>
        <translation>録音</translation>
    </message>
    <message>
        <source>ringtones</source>
        <translation>着信音</translation>
    </message>
    <message>
        <source>the running program does not know this request: it is another version</source>
        <translation>実行中のプログラムはこの要求に対応していません: 別のバージョンです</translation>
    </message>
    <message>
        <source>no entry has the key %1 (nothing was removed)</source>
        <translation>キー %1 の項目はありません (何も削除していません)</translation>
    </message>
    <message>
        <source>the files are deleted, but the library could not be saved</source>
        <translation>ファイルは削除しましたが、ライブラリを保存できませんでした</translation>
    </message>
    <message>
        <source>library knows list and remove, not %1</source>
        <translation>library で使えるのは list と remove です (%1 は使えません)</translation>
    </message>
    <message>
        <source>library remove takes the keys of entries</source>
        <translation>library remove には項目のキーを指定してください</translation>
    </message>
    <message>
        <source>list recordings and ringtones, or remove some with their files</source>
        <translation>録音と着信音を一覧表示するか、指定したものをファイルごと削除します</translation>
    </message>
    <message>
        <source>List both collections with the key of each entry.</source>
        <translation>両方のコレクションを各項目のキー付きで一覧表示します。</translation>
    </message>
    <message>
        <source>Remove an entry and delete its file.</source>
        <translation>項目を取り除き、そのファイルを削除します。</translation>
    </message>
    <message>
        <source>manual takes nothing</source>
        <translation>manual に引数は指定できません</translation>
    </message>
    <message>
        <source>completions takes one of bash, zsh, fish</source>
        <translation>completions には bash、zsh、fish のどれかを指定してください</translation>
    </message>
    <message>
        <source>print the manual page</source>
        <translation>マニュアルページを出力します</translation>
    </message>
    <message>
        <source>Read the manual page.</source>
        <translation>マニュアルページを読みます。</translation>
    </message>
    <message>
        <source>print the completions for a shell</source>
        <translation>シェルの補完を出力します</translation>
    </message>
    <message>
        <source>Install the completions for the current user&apos;s bash.</source>
        <translation>現在のユーザーの bash に補完をインストールします。</translation>
    </message>
    <message>
        <source>%1: is a folder</source>
        <translation>%1: フォルダーです</translation>
    </message>
    <message>
        <source>%1: no such folder</source>
        <translation>%1: そのようなフォルダーはありません</translation>
    </message>
    <message>
        <source>%1: that path is not a regular file</source>
        <translation>%1: 通常のファイルではありません</translation>
    </message>
    <message>
        <source>%1: exists already (--overwrite replaces it)</source>
        <translation>%1: すでに存在します (--overwrite で置き換えます)</translation>
    </message>
    <message>
        <source>the folder %1 cannot be created</source>
        <translation>フォルダー %1 を作成できません</translation>
    </message>
    <message>
        <source>the folder %1 cannot be written: %2</source>
        <translation>フォルダー %1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>record takes options only</source>
        <translation>record に指定できるのはオプションだけです</translation>
    </message>
    <message>
        <source>--for takes a time above 0</source>
        <translation>--for には 0 より大きい時間を指定してください</translation>
    </message>
    <message>
        <source>--pre-roll takes at most %1 milliseconds</source>
        <translation>--pre-roll に指定できるのは最大 %1 ミリ秒です</translation>
    </message>
    <message>
        <source>--folder takes a folder</source>
        <translation>--folder にはフォルダーを指定してください</translation>
    </message>
    <message>
        <source>without an input device and without --computer there is nothing to record</source>
        <translation>入力デバイスも --computer もないため、録音するものがありません</translation>
    </message>
    <message>
        <source>record an input device, what the computer plays, or both into .m4a files</source>
        <translation>入力デバイス、コンピューターの再生音、または両方を .m4a ファイルに録音します</translation>
    </message>
    <message>
        <source>Record the input device with this name, UID or id; none records no input device.</source>
        <translation>指定した名前、UID、または ID の入力デバイスを録音します。none を指定すると入力デバイスを録音しません。</translation>
    </message>
    <message>
        <source>the device and the choice stored in the preferences</source>
        <translation>設定に保存されているデバイスと選択</translation>
    </message>
    <message>
        <source>Record what the computer plays.</source>
        <translation>コンピューターの再生音を録音します。</translation>
    </message>
    <message>
        <source>Stop after S seconds of recorded sound, over all files.</source>
        <translation>録音した音が全ファイル合計で S 秒になったら停止します。</translation>
    </message>
    <message>
        <source>until Control+C</source>
        <translation>Control+C で止めるまで</translation>
    </message>
    <message>
        <source>When waiting for the first sound, give up after S seconds.</source>
        <translation>最初の音を待つとき、S 秒たったらあきらめます。</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>無制限</translation>
    </message>
    <message>
        <source>Begin a new file after a silence of MS milliseconds of computer audio.</source>
        <translation>コンピューター音声の無音が MS ミリ秒続いたら、新しいファイルを始めます。</translation>
    </message>
    <message>
        <source>as in the preferences</source>
        <translation>設定のとおり</translation>
    </message>
    <message>
        <source>When waiting for the first sound, begin MS milliseconds before it, at most 5000.</source>
        <translation>最初の音を待つとき、その MS ミリ秒前から始めます (最大 5000)。</translation>
    </message>
    <message>
        <source>Drop a recording shorter than S seconds.</source>
        <translation>S 秒より短い録音を破棄します。</translation>
    </message>
    <message>
        <source>Put the recordings into DIR, which is made when it is missing.</source>
        <translation>録音を DIR に保存します。ない場合は作成します。</translation>
    </message>
    <message>
        <source>Record ten seconds of the input device.</source>
        <translation>入力デバイスを 10 秒間録音します。</translation>
    </message>
    <message>
        <source>Record a named device into the current folder until Control+C.</source>
        <translation>名前を指定したデバイスを、Control+C で止めるまで現在のフォルダーに録音します。</translation>
    </message>
    <message>
        <source>Record what the computer plays, one file for each song, and give up when nothing plays for a minute.</source>
        <translation>コンピューターの再生音を曲ごとに 1 ファイルで録音し、1 分間何も再生されなければあきらめます。</translation>
    </message>
    <message>
        <source>a recording could not be finished</source>
        <translation>完了できなかった録音があります</translation>
    </message>
    <message>
        <source>computer audio: its driver is not installed (see sonaphex driver install)</source>
        <translation>コンピューター音声: ドライバーがインストールされていません (sonaphex driver install を参照)</translation>
    </message>
    <message>
        <source>there is no input device</source>
        <translation>入力デバイスがありません</translation>
    </message>
    <message>
        <source>there is no source to record: name one with --input or --computer</source>
        <translation>録音するソースがありません: --input または --computer で指定してください</translation>
    </message>
    <message>
        <source>nothing can be recorded</source>
        <translation>録音できるものがありません</translation>
    </message>
    <message>
        <source>waiting for the first sound</source>
        <translation>最初の音を待っています</translation>
    </message>
    <message>
        <source>finishing</source>
        <translation>仕上げ処理中</translation>
    </message>
    <message>
        <source>no sound came: nothing was recorded</source>
        <translation>音が来なかったため、何も録音されませんでした</translation>
    </message>
    <message>
        <source>one recording was shorter than the filter&apos;s time and was not kept</source>
        <translation>1 件の録音はフィルターの時間より短いため、保存されませんでした</translation>
    </message>
    <message numerus="yes">
        <source>%n recordings were shorter than the filter&apos;s time and were not kept</source>
        <translation>
            <numerusform>%n 件の録音はフィルターの時間より短いため、保存されませんでした</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: what was recorded is kept in %2</source>
        <translation>%1: 録音済みの部分は %2 に保存されています</translation>
    </message>
    <message>
        <source>%1 is made, but the running program does not know this request: it is another version</source>
        <translation>%1 を作成しました。ただし、実行中のプログラムはこの要求に対応していません: 別のバージョンです</translation>
    </message>
    <message>
        <source>%1 is made, but the library could not be saved</source>
        <translation>%1 を作成しましたが、ライブラリを保存できませんでした</translation>
    </message>
    <message>
        <source>%1: it ends at second %2, --to is %3</source>
        <translation>%1: 終わりは %2 秒ですが、--to が %3 です</translation>
    </message>
    <message>
        <source>stopped before the end: no ringtone was made</source>
        <translation>途中で中止しました: 着信音は作成されていません</translation>
    </message>
    <message>
        <source>the source is damaged, the ringtone is silent where it could not be read: %1</source>
        <translation>元のファイルが破損しています。読み取れなかった部分の着信音は無音です: %1</translation>
    </message>
    <message>
        <source>ringtone takes one file</source>
        <translation>ringtone にはファイルを 1 つ指定してください</translation>
    </message>
    <message>
        <source>ringtone needs --from and --to</source>
        <translation>ringtone には --from と --to が必要です</translation>
    </message>
    <message>
        <source>--to is not after --from</source>
        <translation>--to が --from より後ではありません</translation>
    </message>
    <message>
        <source>make a ringtone from a range of a recording and add it to the library</source>
        <translation>録音の範囲から着信音を作成し、ライブラリに追加します</translation>
    </message>
    <message>
        <source>Begin at second S of the recording.</source>
        <translation>録音の S 秒の位置から始めます。</translation>
    </message>
    <message>
        <source>End at second S of the recording.</source>
        <translation>録音の S 秒の位置で終えます。</translation>
    </message>
    <message>
        <source>Make a ringtone of this half minute.</source>
        <translation>この 30 秒間を着信音にします。</translation>
    </message>
    <message>
        <source>longest silence found: %1 s</source>
        <translation>見つかった最長の無音: %1 秒</translation>
    </message>
    <message>
        <source>%1: no silence of %2 s; the longest one has %3 s</source>
        <translation>%1: %2 秒の無音はありません。最長は %3 秒です</translation>
    </message>
    <message>
        <source>split takes one file</source>
        <translation>split にはファイルを 1 つ指定してください</translation>
    </message>
    <message>
        <source>split needs --silence with at least %1 milliseconds</source>
        <translation>split には --silence で %1 ミリ秒以上の値を指定してください</translation>
    </message>
    <message>
        <source>--level takes decibels from -120 to below 0</source>
        <translation>--level には -120 以上 0 未満のデシベル値を指定してください</translation>
    </message>
    <message>
        <source>cut a recording into several at its silences, without encoding it again</source>
        <translation>録音を再エンコードせずに無音の位置で分割します</translation>
    </message>
    <message>
        <source>Cut in the middle of each silence of at least MS milliseconds, 50 or more.</source>
        <translation>MS ミリ秒以上続く無音の中央で分割します (MS は 50 以上)。</translation>
    </message>
    <message>
        <source>A silence lies below DB decibels of full scale, from -120 to below 0.</source>
        <translation>フルスケール比で DB デシベル未満を無音とします (-120 以上 0 未満)。</translation>
    </message>
    <message>
        <source>Put the parts into DIR.</source>
        <translation>分割した録音を DIR に保存します。</translation>
    </message>
    <message>
        <source>the folder of the recording</source>
        <translation>録音のあるフォルダー</translation>
    </message>
    <message>
        <source>Only list the cuts and the longest silence; write nothing.</source>
        <translation>分割位置と最長の無音を表示するだけで、何も書き込みません。</translation>
    </message>
    <message>
        <source>Make a 1.m4a, a 2.m4a and so on beside a.m4a, which stays as it is.</source>
        <translation>a.m4a はそのまま残し、同じ場所に「a 1.m4a」「a 2.m4a」などを作成します。</translation>
    </message>
    <message>
        <source>See where the cuts would be.</source>
        <translation>分割位置を確認します。</translation>
    </message>
    <message>
        <source>Print one JSON document instead of text.</source>
        <translation>テキストの代わりに JSON 文書を 1 つ出力します。</translation>
    </message>
    <message>
        <source>none</source>
        <comment>cover</comment>
        <translation>なし</translation>
    </message>
    <message>
        <source>title:</source>
        <translation>タイトル:</translation>
    </message>
    <message>
        <source>artist:</source>
        <translation>アーティスト:</translation>
    </message>
    <message>
        <source>album:</source>
        <translation>アルバム:</translation>
    </message>
    <message>
        <source>year:</source>
        <translation>年:</translation>
    </message>
    <message>
        <source>genre:</source>
        <translation>ジャンル:</translation>
    </message>
    <message>
        <source>artwork:</source>
        <translation>アートワーク:</translation>
    </message>
    <message>
        <source>the artwork of %1 could not be written</source>
        <translation>%1 のアートワークを書き込めませんでした</translation>
    </message>
    <message>
        <source>tag takes one file</source>
        <translation>tag にはファイルを 1 つ指定してください</translation>
    </message>
    <message>
        <source>--year: %1 is not a number</source>
        <translation>--year: %1 は数値ではありません</translation>
    </message>
    <message>
        <source>the file is changed</source>
        <translation>ファイルは変更されました</translation>
    </message>
    <message>
        <source>print or write the tags and the cover of an MPEG-4 audio file</source>
        <translation>MPEG-4 音声ファイルのタグとカバーを表示または書き込みます</translation>
    </message>
    <message>
        <source>Write this title. An empty text removes the tag; the same holds for the other texts.</source>
        <translation>このタイトルを書き込みます。空の文字列を指定するとタグを削除します。ほかの文字列でも同様です。</translation>
    </message>
    <message>
        <source>Write this artist.</source>
        <translation>このアーティストを書き込みます。</translation>
    </message>
    <message>
        <source>Write this album.</source>
        <translation>このアルバムを書き込みます。</translation>
    </message>
    <message>
        <source>Write this year; 0 removes the tag.</source>
        <translation>この年を書き込みます。0 でタグを削除します。</translation>
    </message>
    <message>
        <source>Write this genre.</source>
        <translation>このジャンルを書き込みます。</translation>
    </message>
    <message>
        <source>Take the cover from this picture file.</source>
        <translation>この画像ファイルをカバーにします。</translation>
    </message>
    <message>
        <source>Rename the file after its title, unless the name is taken or not possible.</source>
        <translation>ファイル名をタイトルに変更します。その名前が使用済みか使えない場合は変更しません。</translation>
    </message>
    <message>
        <source>Print the tags.</source>
        <translation>タグを表示します。</translation>
    </message>
    <message>
        <source>Write a title and a cover.</source>
        <translation>タイトルとカバーを書き込みます。</translation>
    </message>
    <message>
        <source>Write a title and name the file Morning.m4a.</source>
        <translation>タイトルを書き込み、ファイル名を Morning.m4a にします。</translation>
    </message>
    <message>
        <source>%1: This path exists, please change the path or name.</source>
        <translation>%1: このパスはすでに存在します。パスまたは名前を変更してください。</translation>
    </message>
    <message>
        <source>%1: the file is being played</source>
        <translation>%1: ファイルは再生中です</translation>
    </message>
    <message>
        <source>the file is trimmed</source>
        <translation>ファイルはトリミングされました</translation>
    </message>
    <message>
        <source>trim takes one file</source>
        <translation>trim にはファイルを 1 つ指定してください</translation>
    </message>
    <message>
        <source>trim takes --from, --to or both</source>
        <translation>trim には --from、--to、または両方を指定してください</translation>
    </message>
    <message>
        <source>--to must be at least a tenth of a second after --from</source>
        <translation>--to は --from より 0.1 秒以上後にしてください</translation>
    </message>
    <message>
        <source>--save-as names no file</source>
        <translation>--save-as にファイルの指定がありません</translation>
    </message>
    <message>
        <source>cut a recording down to a range, in its place or into a new file</source>
        <translation>録音を指定した範囲に切り詰め、元のファイルまたは新しいファイルに保存します</translation>
    </message>
    <message>
        <source>Write a new file and leave the recording as it is. An existing file is kept.</source>
        <translation>新しいファイルに書き出し、元の録音はそのまま残します。既存のファイルは残します。</translation>
    </message>
    <message>
        <source>the recording is replaced</source>
        <translation>元の録音を置き換える</translation>
    </message>
    <message>
        <source>Cut off the first two and a half seconds and all after a minute.</source>
        <translation>最初の 2.5 秒と 1 分以降を切り取ります。</translation>
    </message>
    <message>
        <source>Copy ten seconds into a new recording.</source>
        <translation>10 秒間を新しい録音にコピーします。</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n values are too few for a picture</source>
        <translation>
            <numerusform>%1: 値が %n 個では少なすぎて画像にできません</numerusform>
        </translation>
    </message>
    <message>
        <source>waveform takes one file</source>
        <translation>waveform にはファイルを 1 つ指定してください</translation>
    </message>
    <message>
        <source>stopped before the end</source>
        <translation>途中で中止しました</translation>
    </message>
    <message>
        <source>the file is damaged, what could be read is shown: %1</source>
        <translation>ファイルが破損しています。読み取れた部分を表示しました: %1</translation>
    </message>
    <message>
        <source>print ten values of a file&apos;s outline for each second</source>
        <translation>ファイルの波形を 1 秒につき 10 個の値で出力します</translation>
    </message>
    <message>
        <source>Draw the outline into a PNG file instead of printing it.</source>
        <translation>波形を出力する代わりに PNG ファイルに描画します。</translation>
    </message>
    <message>
        <source>Replace FILE when it exists.</source>
        <translation>FILE が存在する場合に置き換えます。</translation>
    </message>
    <message>
        <source>Draw the outline of a recording.</source>
        <translation>録音の波形を描画します。</translation>
    </message>
    <message>
        <source>%1: no such command and no such file (see sonaphex help)</source>
        <translation>%1: そのようなコマンドもファイルもありません (sonaphex help を参照)</translation>
    </message>
    <message>
        <source>burning</source>
        <translation>書き込み中</translation>
    </message>
    <message>
        <source>%1, %2 being finished</source>
        <translation>%1、仕上げ処理中 %2 件</translation>
    </message>
    <message>
        <source>%1, %2 bytes</source>
        <translation>%1、%2 バイト</translation>
    </message>
    <message>
        <source>disc image</source>
        <translation>ディスクイメージ</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a list of the library and how many are in it</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>--app and --not-app exclude each other</source>
        <translation>--app と --not-app は同時に使えません</translation>
    </message>
    <message>
        <source>--%1 takes the name of a program</source>
        <translation>--%1 にはプログラム名が必要です</translation>
    </message>
    <message>
        <source>Of computer audio, record only this program; may be given several times.</source>
        <translation>コンピューターの音声のうち、このプログラムだけを録音します。複数回指定できます。</translation>
    </message>
    <message>
        <source>with --computer everything, else as in the preferences</source>
        <translation>--computer ではすべて、それ以外は環境設定のとおり</translation>
    </message>
    <message>
        <source>Of computer audio, record everything but this program; may be given several times.</source>
        <translation>コンピューターの音声のうち、このプログラム以外をすべて録音します。複数回指定できます。</translation>
    </message>
    <message>
        <source>Record one program, whatever else plays.</source>
        <translation>ほかに何が再生されていても、1つのプログラムだけを録音します。</translation>
    </message>
    <message>
        <source>Of computer audio, give each file the title, artist, album and cover that the media player names.</source>
        <translation>コンピューター音声の録音で、メディアプレーヤーが示すタイトル、アーティスト、アルバム、カバーを各ファイルに付けます。</translation>
    </message>
    <message>
        <source>Of computer audio, begin a new file when the media player goes on to another track.</source>
        <translation>コンピューター音声の録音で、メディアプレーヤーが別の曲に移ったら新しいファイルを始めます。</translation>
    </message>
    <message>
        <source>Record an album without pauses, one file with its title for each track.</source>
        <translation>曲間に無音のないアルバムを、曲ごとにタイトル付きの 1 ファイルで録音します。</translation>
    </message>
    <message>
        <source>%1: no tracks were kept of this recording</source>
        <translation>%1: この録音のトラックは残されていません</translation>
    </message>
    <message>
        <source>both gains were lowered by %1 dB, so that nothing is clipped</source>
        <translation>クリップしないように、両方のゲインを %1 dB 下げました</translation>
    </message>
    <message>
        <source>the new mix is saved</source>
        <translation>新しいミックスを保存しました</translation>
    </message>
    <message>
        <source>--%1: %2 is not a number</source>
        <translation>--%1: %2 は数値ではありません</translation>
    </message>
    <message>
        <source>balance takes one file</source>
        <translation>balance にはファイルを 1 つ指定してください</translation>
    </message>
    <message>
        <source>gains are -60 to 20 decibels, and the delay -2000 to 2000 milliseconds</source>
        <translation>ゲインは -60 から 20 デシベル、遅延は -2000 から 2000 ミリ秒の範囲で指定してください</translation>
    </message>
    <message>
        <source>--to names no file</source>
        <translation>--to にファイルの指定がありません</translation>
    </message>
    <message>
        <source>mix the kept tracks of a recording anew, in its place or into a new file</source>
        <translation>録音と一緒に残したトラックをミックスし直し、元のファイルまたは新しいファイルに保存します</translation>
    </message>
    <message>
        <source>Make the input louder by DB decibels, or softer when it is negative; -60 is silence.</source>
        <translation>入力を DB デシベル大きくします。負の値では小さくなり、-60 で無音になります。</translation>
    </message>
    <message>
        <source>Make computer audio louder by DB decibels, or softer when it is negative; -60 is silence.</source>
        <translation>コンピューター音声を DB デシベル大きくします。負の値では小さくなり、-60 で無音になります。</translation>
    </message>
    <message>
        <source>Move computer audio MS milliseconds later, or earlier when it is negative; at most 2000.</source>
        <translation>コンピューター音声を MS ミリ秒遅らせます。負の値では早めます (最大 2000)。</translation>
    </message>
    <message>
        <source>Make the microphone louder against what the computer played.</source>
        <translation>コンピューターの再生音に対して、マイクの音を大きくします。</translation>
    </message>
    <message>
        <source>Move computer audio 120 milliseconds later, in a new file.</source>
        <translation>コンピューター音声を 120 ミリ秒遅らせ、新しいファイルに保存します。</translation>
    </message>
    <message>
        <source>Of a recording of both sources, also keep the input and computer audio, each as a file of its own beside the mix.</source>
        <translation>両方のソースの録音で、入力とコンピューター音声も、それぞれ別のファイルとしてミックスと同じ場所に残します。</translation>
    </message>
</context>
<context>
    <name>Control</name>
    <message>
        <source>%1: no such folder</source>
        <translation>%1: そのようなフォルダーはありません</translation>
    </message>
    <message>
        <source>%1: no such file</source>
        <translation>%1: そのようなファイルはありません</translation>
    </message>
    <message>
        <source>%1: the folder cannot be created</source>
        <translation>%1: フォルダーを作成できません</translation>
    </message>
    <message>
        <source>the file or its tags could not be written</source>
        <translation>ファイルまたはそのタグを書き込めませんでした</translation>
    </message>
    <message>
        <source>This path exists, please change the path or name.</source>
        <translation>このパスはすでに存在します。パスまたは名前を変更してください。</translation>
    </message>
    <message>
        <source>stopped before the end</source>
        <translation>途中で中止しました</translation>
    </message>
    <message>
        <source>a part of it is damaged and cannot be measured</source>
        <translation>一部が破損しているため測定できません</translation>
    </message>
    <message>
        <source>%1 joined</source>
        <translation>%1 連結</translation>
    </message>
</context>
<context>
    <name>ControlRequests</name>
    <message>
        <source>the program is ending</source>
        <translation>プログラムは終了処理中です</translation>
    </message>
    <message>
        <source>there is no source to record</source>
        <translation>録音するソースがありません</translation>
    </message>
    <message>
        <source>nothing is being recorded</source>
        <translation>録音していません</translation>
    </message>
    <message>
        <source>unknown request</source>
        <translation>不明な要求です</translation>
    </message>
    <message>
        <source>there is no path</source>
        <translation>パスがありません</translation>
    </message>
</context>
<context>
    <name>ConvertingTipView</name>
    <message>
        <source>Converting notice</source>
        <translation>変換中のお知らせ</translation>
    </message>
    <message>
        <source>The recording is converted.</source>
        <translation>録音の変換が終わりました。</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>the password prompt was cancelled</source>
        <translation>パスワードの入力がキャンセルされました</translation>
    </message>
    <message>
        <source>pkexec is not installed: administrator rights cannot be requested</source>
        <translation>pkexec がインストールされていません: 管理者権限を要求できません</translation>
    </message>
    <message>
        <source>administrator rights were not given</source>
        <translation>管理者権限が与えられませんでした</translation>
    </message>
    <message>
        <source>the command ended with status %1</source>
        <translation>コマンドがステータス %1 で終了しました</translation>
    </message>
</context>
<context>
    <name>DesktopMain</name>
    <message>
        <source>%1 was not opened: the running program does not answer</source>
        <translation>%1 を開けませんでした: 実行中のプログラムの応答がありません</translation>
    </message>
    <message>
        <source>it is already running, but does not answer</source>
        <translation>すでに実行中ですが、応答がありません</translation>
    </message>
    <message>
        <source>Nothing can be recorded or played.</source>
        <translation>録音も再生もできません。</translation>
    </message>
    <message>
        <source>Sonaphex cannot start.</source>
        <translation>Sonaphex を起動できません。</translation>
    </message>
</context>
<context>
    <name>Disc</name>
    <message>
        <source>%1: its rate cannot be converted</source>
        <translation>%1: サンプルレートを変換できません</translation>
    </message>
    <message>
        <source>%1: contains no audio</source>
        <translation>%1: 音声が含まれていません</translation>
    </message>
    <message>
        <source>%1: no such folder</source>
        <translation>%1: そのようなフォルダーはありません</translation>
    </message>
    <message>
        <source>%1: exists already, and an image replaces no file; choose another name</source>
        <translation>%1: すでに存在します。イメージでファイルは置き換えられません。別の名前を選んでください</translation>
    </message>
    <message>
        <source>%1: a cue sheet cannot name a file with quotation marks or line ends; choose another name</source>
        <translation>%1: キューシートには引用符や改行を含むファイル名を書けません。別の名前を選んでください</translation>
    </message>
    <message>
        <source>a file cannot be read: nothing was burned</source>
        <translation>読み取れないファイルがあります: 何も書き込まれませんでした</translation>
    </message>
    <message>
        <source>there is nothing to burn: no file is ticked</source>
        <translation>書き込むものがありません: チェックしたファイルがありません</translation>
    </message>
    <message>
        <source>an audio CD holds at most %1 tracks, these are %2</source>
        <translation>オーディオ CD に入るのは最大 %1 トラックですが、%2 トラックあります</translation>
    </message>
    <message>
        <source>Write Disc Image</source>
        <translation>ディスクイメージを書き込む</translation>
    </message>
    <message>
        <source>The image cannot be written there.</source>
        <translation>その場所にはイメージを書き込めません。</translation>
    </message>
    <message>
        <source>no path was given for the disc image</source>
        <translation>ディスクイメージのパスが指定されていません</translation>
    </message>
    <message>
        <source>%1: the disk is full: the image needs %2, %3 are free</source>
        <translation>%1: ディスクがいっぱいです: イメージには %2 必要ですが、空きは %3 です</translation>
    </message>
    <message>
        <source>%1: cannot be written: %2</source>
        <translation>%1: 書き込めません: %2</translation>
    </message>
    <message>
        <source>%1: cannot be read</source>
        <translation>%1: 読み取れません</translation>
    </message>
    <message>
        <source>%1: is not an audio file</source>
        <translation>%1: 音声ファイルではありません</translation>
    </message>
    <message>
        <source>it was stopped before the end: nothing was written</source>
        <translation>途中で中止しました: 何も書き込まれていません</translation>
    </message>
    <message>
        <source>the drive cannot be opened</source>
        <translation>ドライブを開けません</translation>
    </message>
    <message>
        <source>%1: there is no disc in the drive</source>
        <translation>%1: ドライブにディスクがありません</translation>
    </message>
    <message>
        <source>%1: the disc is not blank</source>
        <translation>%1: ディスクが空ではありません</translation>
    </message>
    <message>
        <source>%1: the drive does not get ready</source>
        <translation>%1: ドライブの準備ができません</translation>
    </message>
    <message>
        <source>%1: this disc cannot be written to</source>
        <translation>%1: このディスクには書き込めません</translation>
    </message>
    <message>
        <source>the disc cannot be written like this: %1</source>
        <translation>ディスクにこの方法では書き込めません: %1</translation>
    </message>
    <message>
        <source>the drive gave no reason</source>
        <translation>ドライブから理由が示されませんでした</translation>
    </message>
    <message>
        <source>it was stopped before the end: the disc may be unusable</source>
        <translation>途中で中止しました: ディスクは使えなくなった可能性があります</translation>
    </message>
    <message>
        <source>it was stopped before the first sector: the disc is as it was</source>
        <translation>最初のセクターの前に中止しました: ディスクは元のままです</translation>
    </message>
    <message>
        <source>%1: an audio CD needs a CD-R or a CD-RW, this is a %2</source>
        <translation>%1: オーディオ CD には CD-R または CD-RW が必要ですが、これは %2 です</translation>
    </message>
    <message>
        <source>disc of another kind</source>
        <translation>別の種類のディスク</translation>
    </message>
    <message>
        <source>the layout of the disc could not be made</source>
        <translation>ディスクのレイアウトを作成できませんでした</translation>
    </message>
    <message>
        <source>%1 (the disc is unusable)</source>
        <translation>%1 (ディスクは使えなくなりました)</translation>
    </message>
    <message>
        <source>%1: the burn failed: %2</source>
        <translation>%1: 書き込みに失敗しました: %2</translation>
    </message>
    <message>
        <source>%1: this disc cannot be erased</source>
        <translation>%1: このディスクは消去できません</translation>
    </message>
    <message>
        <source>%1: the erase failed: %2</source>
        <translation>%1: 消去に失敗しました: %2</translation>
    </message>
    <message>
        <source>no right to use %1: join the group that owns it (often &quot;cdrom&quot;) and log in again</source>
        <translation>%1 を使用する権限がありません: 所有グループ (多くは「cdrom」) に加わり、ログインし直してください</translation>
    </message>
    <message>
        <source>another program uses the drive, or its disc is mounted</source>
        <translation>別のプログラムがドライブを使用中か、ディスクがマウントされています</translation>
    </message>
    <message>
        <source>the drive is gone</source>
        <translation>ドライブがなくなりました</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>%1 を開けません: %2</translation>
    </message>
    <message>
        <source>%1: no such file</source>
        <translation>%1: そのようなファイルはありません</translation>
    </message>
    <message>
        <source>%1: is not a file</source>
        <translation>%1: ファイルではありません</translation>
    </message>
    <message>
        <source>%1: no right to read it</source>
        <translation>%1: 読み取る権限がありません</translation>
    </message>
    <message>
        <source>%1: is empty</source>
        <translation>%1: 空です</translation>
    </message>
    <message>
        <source>%1: the file ends earlier than when it was measured</source>
        <translation>%1: ファイルが測定時より短くなっています</translation>
    </message>
    <message>
        <source>there is not enough room on the disc: the tracks need %1 minutes (%2 sectors), %3 minutes (%4 sectors) are free</source>
        <translation>ディスクの空き容量が足りません: トラックには %1 分 (%2 セクター) 必要ですが、空きは %3 分 (%4 セクター) です</translation>
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
        <translation>%1 を開けません: 先に開いているダイアログを閉じてください。</translation>
    </message>
    <message>
        <source>The tracks cannot be mixed.</source>
        <translation>トラックをミックスできません。</translation>
    </message>
</context>
<context>
    <name>FilteredAudioModel</name>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>Foundation</name>
    <message>
        <source>%1: another program is using it</source>
        <translation>%1: 別のプログラムが使用中です</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>%1 is a link</source>
        <translation>%1 はリンクです</translation>
    </message>
    <message>
        <source>%1 is no folder</source>
        <translation>%1 はフォルダーではありません</translation>
    </message>
    <message>
        <source>%1 belongs to another user</source>
        <translation>%1 は別のユーザーのものです</translation>
    </message>
    <message>
        <source>%1 is open to others</source>
        <translation>%1 はほかのユーザーもアクセスできます</translation>
    </message>
    <message>
        <source>a part of the program is missing: %1</source>
        <translation>プログラムの一部がありません: %1</translation>
    </message>
    <message>
        <source>%1 is already answered</source>
        <translation>%1 にはすでに応答するプログラムがあります</translation>
    </message>
    <message>
        <source>%1 is not a socket of this user</source>
        <translation>%1 はこのユーザーのソケットではありません</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the items of a list</comment>
        <translation>、</translation>
    </message>
    <message>
        <source>is a link</source>
        <translation>リンクです</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>フォルダーです</translation>
    </message>
    <message>
        <source>belongs to another user</source>
        <translation>別のユーザーのものです</translation>
    </message>
    <message>
        <source>is larger than %1</source>
        <translation>%1 を超えています</translation>
    </message>
</context>
<context>
    <name>HelpPages</name>
    <message>
        <source>Sonaphex support</source>
        <translation>Sonaphex サポート</translation>
    </message>
    <message>
        <source>Nothing is recorded</source>
        <translation>何も録音されない</translation>
    </message>
    <message>
        <source>Look whether a source is chosen in the main window: an input device, the computer&apos;s audio, or both. In a terminal, &lt;code&gt;sonaphex devices&lt;/code&gt; lists the input devices that the sound server offers.</source>
        <translation>メインウィンドウでソース (入力デバイス、コンピューター音声、または両方) が選択されているか確認してください。端末で &lt;code&gt;sonaphex devices&lt;/code&gt; を実行すると、サウンドサーバーが提供する入力デバイスを一覧表示します。</translation>
    </message>
    <message>
        <source>A recording of the computer&apos;s audio alone begins with the first sound that the computer plays.</source>
        <translation>コンピューター音声だけの録音は、コンピューターが最初の音を再生したときに始まります。</translation>
    </message>
    <message>
        <source>A recording is missing</source>
        <translation>録音が見つからない</translation>
    </message>
    <message>
        <source>Recordings shorter than the time that is set in the preferences are dropped; switch the filter off to keep them. What could not be finished, for instance on a full disk, lies in &lt;code&gt;~/.local/share/com.korvane.Sonaphex/Unfinished&lt;/code&gt;.</source>
        <translation>設定ウィンドウで指定した時間より短い録音は破棄されます。残すには、フィルターをオフにしてください。ディスクがいっぱいのときなど、完了できなかった録音は &lt;code&gt;~/.local/share/com.korvane.Sonaphex/Unfinished&lt;/code&gt; にあります。</translation>
    </message>
    <message>
        <source>The computer&apos;s audio cannot be chosen</source>
        <translation>コンピューター音声を選択できない</translation>
    </message>
    <message>
        <source>It needs a small add-on: see &lt;a href=&quot;computer-audio.html&quot;&gt;recording the computer&apos;s audio&lt;/a&gt;.</source>
        <translation>小さなアドオンが必要です: &lt;a href=&quot;computer-audio.html&quot;&gt;コンピューター音声の録音&lt;/a&gt;を参照してください。</translation>
    </message>
    <message>
        <source>The settings are gone</source>
        <translation>設定が消えた</translation>
    </message>
    <message>
        <source>They are in &lt;code&gt;~/.config/com.korvane.Sonaphex.plist&lt;/code&gt;. A damaged file is kept beside it under a name that ends in &lt;code&gt;.damaged-&lt;/code&gt; and the date.</source>
        <translation>設定は &lt;code&gt;~/.config/com.korvane.Sonaphex.plist&lt;/code&gt; にあります。破損したファイルは、末尾に &lt;code&gt;.damaged-&lt;/code&gt; と日付を付けた名前で同じ場所に残されます。</translation>
    </message>
    <message>
        <source>Recording the computer&apos;s audio</source>
        <translation>コンピューター音声の録音</translation>
    </message>
    <message>
        <source>The add-on is an input device named “Korvane System Audio” that hears what the default output plays. It is a small program of the user&apos;s session that speaks to the sound server; it changes nothing in what you hear, and it never becomes the default microphone of other programs.</source>
        <translation>アドオンは、既定の出力の再生音を取り込む「Korvane System Audio」という名前の入力デバイスです。ユーザーのセッションで動作し、サウンドサーバーと通信する小さなプログラムです。聞こえる音には影響せず、ほかのプログラムの既定のマイクになることもありません。</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>インストール</translation>
    </message>
    <message>
        <source>Choose Install in the preferences window, or run &lt;code&gt;sonaphex driver install&lt;/code&gt;. The password of an administrator is asked for once: the add-on is installed for all users of the computer.</source>
        <translation>設定ウィンドウで「インストール」を選ぶか、&lt;code&gt;sonaphex driver install&lt;/code&gt; を実行します。管理者のパスワードが 1 回だけ必要です。アドオンはコンピューターのすべてのユーザーにインストールされます。</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Choose Remove in the same place, or run &lt;code&gt;sonaphex driver remove&lt;/code&gt;.</source>
        <translation>同じ場所で「削除」を選ぶか、&lt;code&gt;sonaphex driver remove&lt;/code&gt; を実行します。</translation>
    </message>
</context>
<context>
    <name>ID3EditSave</name>
    <message>
        <source>The file “%1” is no longer there.</source>
        <translation>ファイル「%1」はもうありません。</translation>
    </message>
    <message>
        <source>The cover of “%1” could not be written.</source>
        <translation>「%1」のカバーを書き込めませんでした。</translation>
    </message>
    <message>
        <source>The tags of “%1” could not be written.</source>
        <translation>「%1」のタグを書き込めませんでした。</translation>
    </message>
    <message>
        <source>The tags of “%1” could not be written: %2</source>
        <translation>「%1」のタグを書き込めませんでした: %2</translation>
    </message>
</context>
<context>
    <name>ID3EditWnd</name>
    <message>
        <source>Tags</source>
        <translation>タグ</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>選択(&amp;C)…</translation>
    </message>
    <message>
        <source>Choose a picture for the cover</source>
        <translation>カバーの画像を選択</translation>
    </message>
    <message>
        <source>Drop a picture here. Drag it out to remove it.</source>
        <translation>ここに画像をドロップします。外へドラッグすると削除します。</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>タイトル(&amp;T):</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>A&amp;rtist:</source>
        <translation>アーティスト(&amp;R):</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>アーティスト</translation>
    </message>
    <message>
        <source>Al&amp;bum:</source>
        <translation>アルバム(&amp;B):</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>アルバム</translation>
    </message>
    <message>
        <source>&amp;Year:</source>
        <translation>年(&amp;Y):</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>年</translation>
    </message>
    <message>
        <source>&amp;Genre:</source>
        <translation>ジャンル(&amp;G):</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>ジャンル</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>完了(&amp;D)</translation>
    </message>
</context>
<context>
    <name>ID3EditWndController</name>
    <message>
        <source>Choose</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>This file is not a picture.</source>
        <translation>このファイルは画像ではありません。</translation>
    </message>
    <message>
        <source>Not everything could be saved.</source>
        <translation>一部を保存できませんでした。</translation>
    </message>
    <message>
        <source>ID3 converter......</source>
        <translation>ID3 を変換しています......</translation>
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
        <translation>Super</translation>
    </message>
    <message>
        <source>Shift</source>
        <comment>a key of the keyboard</comment>
        <translation>Shift</translation>
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
        <translation>なし</translation>
    </message>
    <message>
        <source>The desktop has no keys for this. Choose some in its settings.</source>
        <translation>デスクトップにこの操作のキーがありません。デスクトップの設定で選んでください。</translation>
    </message>
    <message>
        <source>These keys are set in the desktop&apos;s settings.</source>
        <translation>これらのキーはデスクトップの設定で変更できます。</translation>
    </message>
    <message>
        <source>No keys in the desktop&apos;s settings</source>
        <translation>デスクトップの設定にキーがありません</translation>
    </message>
    <message>
        <source>Click, then press the keys</source>
        <translation>クリックしてキーを押す</translation>
    </message>
    <message>
        <source>Press the keys</source>
        <translation>キーを押してください</translation>
    </message>
</context>
<context>
    <name>LibraryOutlineModel</name>
    <message numerus="yes">
        <source>%n recording(s)</source>
        <translation>
            <numerusform>録音 %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>Library</source>
        <translation>ライブラリ</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Heading</source>
        <translation>見出し</translation>
    </message>
</context>
<context>
    <name>LibraryPresenter</name>
    <message>
        <source>The file is no longer there: %1</source>
        <translation>ファイルはもうありません: %1</translation>
    </message>
    <message>
        <source>“%1” cannot be played.</source>
        <translation>「%1」を再生できません。</translation>
    </message>
    <message>
        <source>“%1” cannot be played: %2</source>
        <translation>「%1」を再生できません: %2</translation>
    </message>
    <message>
        <source>The folder of “%1” could not be shown.</source>
        <translation>「%1」のフォルダーを表示できませんでした。</translation>
    </message>
    <message>
        <source>No player could be opened for “%1”.</source>
        <translation>「%1」を開くプレーヤーを起動できませんでした。</translation>
    </message>
</context>
<context>
    <name>MainMenus</name>
    <message>
        <source>&amp;Record</source>
        <translation>録音(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Cut to Another Recording</source>
        <translation>次の録音に切り替え(&amp;C)</translation>
    </message>
    <message>
        <source>Close this file and go on in a new one</source>
        <translation>このファイルを閉じて新しいファイルで続けます</translation>
    </message>
    <message>
        <source>Record the &amp;Input Device</source>
        <translation>入力デバイスを録音(&amp;I)</translation>
    </message>
    <message>
        <source>Record Computer &amp;Audio</source>
        <translation>コンピューター音声を録音(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>Edit &amp;Tags…</source>
        <translation>タグを編集(&amp;T)…</translation>
    </message>
    <message>
        <source>Title, artist, album and cover of the recording</source>
        <translation>録音のタイトル、アーティスト、アルバム、カバー</translation>
    </message>
    <message>
        <source>T&amp;rim…</source>
        <translation>トリミング(&amp;I)…</translation>
    </message>
    <message>
        <source>Keep a part of the recording</source>
        <translation>録音の一部を残します</translation>
    </message>
    <message>
        <source>Make a &amp;Ringtone…</source>
        <translation>着信音を作成(&amp;R)…</translation>
    </message>
    <message>
        <source>Cut a ringtone out of the recording</source>
        <translation>録音から着信音を切り出します</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Delete the selected recordings and their files</source>
        <translation>選択した録音をファイルごと削除します</translation>
    </message>
    <message>
        <source>&amp;Search…</source>
        <translation>検索(&amp;S)…</translation>
    </message>
    <message>
        <source>Search titles, artists and albums</source>
        <translation>タイトル、アーティスト、アルバムを検索します</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>設定(&amp;P)…</translation>
    </message>
    <message>
        <source>&amp;Library</source>
        <translation>ライブラリ(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>再生(&amp;P)</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>再生または一時停止</translation>
    </message>
    <message>
        <source>Play the &amp;Selected Recording</source>
        <translation>選択した録音を再生(&amp;S)</translation>
    </message>
    <message>
        <source>Play from its beginning</source>
        <translation>最初から再生します</translation>
    </message>
    <message>
        <source>Back %1 Seconds</source>
        <translation>%1 秒戻る</translation>
    </message>
    <message>
        <source>Forward %1 Seconds</source>
        <translation>%1 秒進む</translation>
    </message>
    <message>
        <source>S&amp;how in Folder</source>
        <translation>フォルダーで表示(&amp;H)</translation>
    </message>
    <message>
        <source>Show the file in the file manager</source>
        <translation>ファイルマネージャーでファイルを表示します</translation>
    </message>
    <message>
        <source>&amp;Open in Player</source>
        <translation>プレーヤーで開く(&amp;O)</translation>
    </message>
    <message>
        <source>Open the file in your music player</source>
        <translation>音楽プレーヤーでファイルを開きます</translation>
    </message>
    <message>
        <source>&amp;Burn to Disc…</source>
        <translation>ディスクに書き込む(&amp;B)…</translation>
    </message>
    <message>
        <source>Make an audio CD of this list</source>
        <translation>この一覧からオーディオ CD を作成します</translation>
    </message>
    <message>
        <source>&amp;Find Short Recordings…</source>
        <translation>短い録音を検索(&amp;F)…</translation>
    </message>
    <message>
        <source>Find recordings that are too short to keep</source>
        <translation>短すぎて不要な録音を探します</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Switch the Display</source>
        <translation>表示パネルの切り替え(&amp;S)</translation>
    </message>
    <message>
        <source>Level of the recording, or position of the playback</source>
        <translation>録音のレベルまたは再生位置</translation>
    </message>
    <message>
        <source>Show the Next &amp;Notice</source>
        <translation>次のお知らせを表示(&amp;N)</translation>
    </message>
    <message>
        <source>Several notices stand in the display</source>
        <translation>複数のお知らせが表示されています</translation>
    </message>
    <message>
        <source>&amp;Dismiss All Notices</source>
        <translation>すべてのお知らせを閉じる(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Support Page</source>
        <translation>サポートページ(&amp;S)</translation>
    </message>
    <message>
        <source>Computer-Audio &amp;Add-on Page</source>
        <translation>コンピューター音声アドオンのページ(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Install the Computer-Audio Device…</source>
        <translation>コンピューター音声デバイスをインストール(&amp;I)…</translation>
    </message>
    <message>
        <source>A&amp;bout Sonaphex</source>
        <translation>Sonaphex について(&amp;B)</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>トリミング</translation>
    </message>
    <message>
        <source>Ringtone</source>
        <translation>着信音</translation>
    </message>
    <message>
        <source>Edit Tags</source>
        <translation>タグを編集</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>書き込み</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>フィルター</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Open in player</source>
        <translation>プレーヤーで開く</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Choose the input, computer audio, or both first.</source>
        <translation>先に入力、コンピューター音声、または両方を選んでください。</translation>
    </message>
    <message>
        <source>Nothing is being recorded.</source>
        <translation>録音していません。</translation>
    </message>
    <message>
        <source>It is installed already.</source>
        <translation>すでにインストールされています。</translation>
    </message>
    <message>
        <source>The device stays as it is until the recording ends.</source>
        <translation>録音が終わるまでデバイスは変更できません。</translation>
    </message>
    <message>
        <source>The sources stay as they are until the recording ends.</source>
        <translation>録音が終わるまでソースは変更できません。</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>一時停止(&amp;P)</translation>
    </message>
    <message>
        <source>Nothing is playing.</source>
        <translation>再生していません。</translation>
    </message>
    <message>
        <source>&amp;Answer the Notice</source>
        <translation>お知らせに対応(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Answer the Notice: %1</source>
        <translation>お知らせに対応(&amp;A): %1</translation>
    </message>
    <message>
        <source>There is no other notice.</source>
        <translation>ほかのお知らせはありません。</translation>
    </message>
    <message>
        <source>This notice offers nothing.</source>
        <translation>このお知らせに対する操作はありません。</translation>
    </message>
    <message>
        <source>There is no notice.</source>
        <translation>お知らせはありません。</translation>
    </message>
    <message>
        <source>Select a recording first.</source>
        <translation>先に録音を選択してください。</translation>
    </message>
    <message>
        <source>Select a recording first. Nothing is played while recording.</source>
        <translation>先に録音を選択してください。録音中は再生できません。</translation>
    </message>
    <message>
        <source>Arrives in a later version of Sonaphex.</source>
        <translation>Sonaphex の今後のバージョンで追加されます。</translation>
    </message>
    <message>
        <source>There is nothing in this list.</source>
        <translation>この一覧には何もありません。</translation>
    </message>
    <message>
        <source>About Sonaphex</source>
        <translation>Sonaphex について</translation>
    </message>
    <message>
        <source>Sonaphex %1</source>
        <translation>Sonaphex %1</translation>
    </message>
    <message>
        <source>Records what the computer plays, what a microphone hears, or both.

© 2026 The Sonaphex authors. Free software under the GNU General Public License, version 3 or later.</source>
        <translation>コンピューターの再生音、マイクの音、または両方を録音します。

© 2026 The Sonaphex authors. GNU General Public License バージョン 3 以降に基づく自由ソフトウェアです。</translation>
    </message>
    <message>
        <source>S&amp;ort By</source>
        <translation>並べ替え(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Unsorted</source>
        <translation>並べ替えなし(&amp;U)</translation>
    </message>
    <message>
        <source>Sp&amp;lit at Silences…</source>
        <translation>無音で分割(&amp;L)…</translation>
    </message>
    <message>
        <source>Cut the recording into several at its silences</source>
        <translation>録音を無音の位置で複数に分割します</translation>
    </message>
    <message>
        <source>&amp;Join…</source>
        <translation>連結(&amp;J)…</translation>
    </message>
    <message>
        <source>Make one recording of the selected ones, in the order of the list</source>
        <translation>選択した録音を一覧の順に連結し、1 つの録音にします</translation>
    </message>
    <message>
        <source>Select two recordings or more first.</source>
        <translation>先に 2 つ以上の録音を選択してください。</translation>
    </message>
    <message>
        <source>&amp;Balance…</source>
        <translation>音量バランス(&amp;B)…</translation>
    </message>
    <message>
        <source>Mix the input and computer audio of the recording anew</source>
        <translation>録音の入力とコンピューター音声をミックスし直します</translation>
    </message>
    <message>
        <source>This recording has no tracks. The preferences have a box that keeps those of the next ones.</source>
        <translation>この録音にはトラックがありません。今後の録音のトラックは、設定のチェックボックスで残せます。</translation>
    </message>
</context>
<context>
    <name>MainWnd</name>
    <message>
        <source>Start or stop recording</source>
        <translation>録音の開始または停止</translation>
    </message>
    <message>
        <source>Pause or resume recording</source>
        <translation>録音の一時停止または再開</translation>
    </message>
    <message>
        <source>Cut to another recording</source>
        <translation>次の録音に切り替え</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>表示パネル</translation>
    </message>
    <message>
        <source>&amp;Input</source>
        <translation>入力(&amp;I)</translation>
    </message>
    <message>
        <source>Record the chosen input device</source>
        <translation>選択した入力デバイスを録音します</translation>
    </message>
    <message>
        <source>Record the input device</source>
        <translation>入力デバイスを録音</translation>
    </message>
    <message>
        <source>Input device</source>
        <translation>入力デバイス</translation>
    </message>
    <message>
        <source>&amp;Computer audio</source>
        <translation>コンピューター音声(&amp;C)</translation>
    </message>
    <message>
        <source>Record what the computer plays</source>
        <translation>コンピューターの再生音を録音します</translation>
    </message>
    <message>
        <source>Record computer audio</source>
        <translation>コンピューター音声を録音</translation>
    </message>
    <message>
        <source>Lost frames</source>
        <translation>欠落フレーム</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>ライブラリ</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>録音</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Programs to record</source>
        <translation>録音するプログラム</translation>
    </message>
</context>
<context>
    <name>MainWndController</name>
    <message>
        <source>The computer-audio device is installed.</source>
        <translation>コンピューター音声デバイスをインストールしました。</translation>
    </message>
    <message>
        <source>The computer-audio device is installed. What the computer plays is recorded from now on.</source>
        <translation>コンピューター音声デバイスをインストールしました。これ以降、コンピューターの再生音が録音されます。</translation>
    </message>
    <message>
        <source>“%1” was not added: it is shorter than %2 s.</source>
        <translation>「%1」は %2 秒より短いため、追加されませんでした。</translation>
    </message>
    <message>
        <source>%1 selected, %2 together</source>
        <translation>%1 件を選択、合計 %2</translation>
    </message>
    <message>
        <source>No title, artist or album here has “%1” in it.</source>
        <translation>「%1」を含むタイトル、アーティスト、アルバムはここにありません。</translation>
    </message>
    <message>
        <source>The recording appears here when it has ended.</source>
        <translation>録音が終わると、ここに表示されます。</translation>
    </message>
    <message>
        <source>Nothing here yet. Press the red button to make your first recording.</source>
        <translation>まだ何もありません。赤いボタンを押して最初の録音を始めてください。</translation>
    </message>
    <message>
        <source>Ringtones that you make of your recordings appear here.</source>
        <translation>録音から作成した着信音がここに表示されます。</translation>
    </message>
    <message>
        <source>Recordings that you make now appear here.</source>
        <translation>これから行う録音がここに表示されます。</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
</context>
<context>
    <name>Media</name>
    <message>
        <source>cannot be read from the beginning</source>
        <translation>先頭から読み取れません</translation>
    </message>
    <message>
        <source>audio files cannot be read: %1</source>
        <translation>音声ファイルを読み取れません: %1</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>メモリーが足りません</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>読み取れません</translation>
    </message>
    <message>
        <source>not an audio file, or too damaged to be read</source>
        <translation>音声ファイルではないか、破損がひどく読み取れません</translation>
    </message>
    <message>
        <source>the file contains no audio</source>
        <translation>ファイルに音声が含まれていません</translation>
    </message>
    <message>
        <source>its audio format is not supported</source>
        <translation>音声形式に対応していません</translation>
    </message>
    <message>
        <source>no decoder for its audio format</source>
        <translation>音声形式のデコーダーがありません</translation>
    </message>
    <message>
        <source>its audio cannot be decoded</source>
        <translation>音声をデコードできません</translation>
    </message>
    <message>
        <source>damaged at frame %1 (%2)</source>
        <translation>フレーム %1 で破損しています (%2)</translation>
    </message>
    <message>
        <source>channels that cannot be mixed</source>
        <translation>チャンネルをミックスできません</translation>
    </message>
    <message>
        <source>not a finished recording of Sonaphex</source>
        <translation>Sonaphex の完成した録音ではありません</translation>
    </message>
    <message>
        <source>its index is damaged</source>
        <translation>インデックスが破損しています</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>ファイルが空です</translation>
    </message>
    <message>
        <source>the AAC encoder failed</source>
        <translation>AAC エンコーダーでエラーが発生しました</translation>
    </message>
    <message>
        <source>the encoder is missing: %1</source>
        <translation>エンコーダーがありません: %1</translation>
    </message>
    <message>
        <source>the encoder does not take this rate or channel count</source>
        <translation>エンコーダーがこのサンプルレートまたはチャンネル数に対応していません</translation>
    </message>
    <message>
        <source>the rate cannot be converted</source>
        <translation>サンプルレートを変換できません</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>this format cannot be written</source>
        <translation>この形式では書き込めません</translation>
    </message>
    <message>
        <source>too deeply nested</source>
        <translation>入れ子が深すぎます</translation>
    </message>
    <message>
        <source>a box of impossible size</source>
        <translation>ボックスのサイズが不正です</translation>
    </message>
    <message>
        <source>too many boxes</source>
        <translation>ボックスが多すぎます</translation>
    </message>
    <message>
        <source>a box larger than the one around it</source>
        <translation>ボックスが外側のボックスより大きくなっています</translation>
    </message>
    <message>
        <source>a table that is larger than its box</source>
        <translation>テーブルがボックスより大きくなっています</translation>
    </message>
    <message>
        <source>not an MPEG-4 file</source>
        <translation>MPEG-4 ファイルではありません</translation>
    </message>
    <message>
        <source>the file ends within its index</source>
        <translation>ファイルがインデックスの途中で終わっています</translation>
    </message>
    <message>
        <source>the file has no index</source>
        <translation>ファイルにインデックスがありません</translation>
    </message>
    <message>
        <source>a packet of the recording cannot be read</source>
        <translation>録音のパケットを読み取れません</translation>
    </message>
    <message>
        <source>stopped before the end</source>
        <translation>途中で中止しました</translation>
    </message>
    <message>
        <source>%1 cannot be played</source>
        <translation>%1 を再生できません</translation>
    </message>
    <message>
        <source>the sound server went away</source>
        <translation>サウンドサーバーが停止しました</translation>
    </message>
    <message>
        <source>no sound server answers: %1</source>
        <translation>サウンドサーバーの応答がありません: %1</translation>
    </message>
    <message>
        <source>the sound server refused the stream</source>
        <translation>サウンドサーバーがストリームを拒否しました</translation>
    </message>
    <message>
        <source>its tags cannot be written</source>
        <translation>タグを書き込めません</translation>
    </message>
    <message>
        <source>cannot write the tags of %1: %2</source>
        <translation>%1 のタグを書き込めません: %2</translation>
    </message>
    <message>
        <source>cannot read the tags of %1: %2</source>
        <translation>%1 のタグを読み取れません: %2</translation>
    </message>
    <message>
        <source>its tags cannot be read</source>
        <translation>タグを読み取れません</translation>
    </message>
    <message>
        <source>cannot read the image %1: %2</source>
        <translation>画像 %1 を読み取れません: %2</translation>
    </message>
    <message>
        <source>%1 is neither a JPEG nor a PNG image</source>
        <translation>%1 は JPEG 画像でも PNG 画像でもありません</translation>
    </message>
    <message>
        <source>cannot write the artwork of %1 to %2: %3</source>
        <translation>%1 のアートワークを %2 に書き込めません: %3</translation>
    </message>
    <message>
        <source>another program is changing it</source>
        <translation>別のプログラムが変更しています</translation>
    </message>
    <message>
        <source>its index cannot hold more</source>
        <translation>インデックスにこれ以上入りません</translation>
    </message>
    <message>
        <source>the file is cut off</source>
        <translation>ファイルが途中で切れています</translation>
    </message>
    <message>
        <source>its index is too large</source>
        <translation>インデックスが大きすぎます</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>読み取れません</translation>
    </message>
    <message>
        <source>that path is not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>its last box has no size</source>
        <translation>最後のボックスのサイズがありません</translation>
    </message>
</context>
<context>
    <name>MediaLibrary</name>
    <message>
        <source>Record Library</source>
        <translation>録音ライブラリ</translation>
    </message>
    <message>
        <source>Newly Recorded</source>
        <translation>新しい録音</translation>
    </message>
    <message>
        <source>All Recorded</source>
        <translation>すべての録音</translation>
    </message>
    <message>
        <source>Ringtone Library</source>
        <translation>着信音ライブラリ</translation>
    </message>
    <message>
        <source>Newly Ringtone</source>
        <translation>新しい着信音</translation>
    </message>
    <message>
        <source>All Ringtone</source>
        <translation>すべての着信音</translation>
    </message>
</context>
<context>
    <name>Platform::PortalAutostart</name>
    <message>
        <source>Sonaphex waits in the status bar.</source>
        <translation>Sonaphex はシステムトレイで待機します。</translation>
    </message>
    <message>
        <source>the desktop did not allow it</source>
        <translation>デスクトップが許可しませんでした</translation>
    </message>
</context>
<context>
    <name>Players</name>
    <message>
        <source>the address is incomplete</source>
        <translation>アドレスが不完全です</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>画像が大きすぎます</translation>
    </message>
    <message>
        <source>the picture is not a file of this machine</source>
        <translation>画像がこのマシンのファイルではありません</translation>
    </message>
</context>
<context>
    <name>PreferenceWnd</name>
    <message>
        <source>Preferences</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>&amp;Recordings:</source>
        <translation>録音(&amp;R):</translation>
    </message>
    <message>
        <source>Folder of recordings</source>
        <translation>録音のフォルダー</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>選択…</translation>
    </message>
    <message>
        <source>Choose the folder of recordings</source>
        <translation>録音のフォルダーを選択</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>表示(&amp;W)</translation>
    </message>
    <message>
        <source>Show the folder of recordings</source>
        <translation>録音のフォルダーを表示</translation>
    </message>
    <message>
        <source>Rin&amp;gtones:</source>
        <translation>着信音(&amp;G):</translation>
    </message>
    <message>
        <source>Folder of ringtones</source>
        <translation>着信音のフォルダー</translation>
    </message>
    <message>
        <source>Choose the folder of ringtones</source>
        <translation>着信音のフォルダーを選択</translation>
    </message>
    <message>
        <source>S&amp;how</source>
        <translation>表示(&amp;H)</translation>
    </message>
    <message>
        <source>Show the folder of ringtones</source>
        <translation>着信音のフォルダーを表示</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>録音</translation>
    </message>
    <message>
        <source>&amp;Split computer audio at a silence of</source>
        <translation>コンピューター音声を分割する無音の長さ(&amp;S)</translation>
    </message>
    <message>
        <source>Split computer audio at silences</source>
        <translation>コンピューター音声を無音で分割</translation>
    </message>
    <message>
        <source>Length of silence in milliseconds</source>
        <translation>無音の長さ (ミリ秒)</translation>
    </message>
    <message>
        <source>milliseconds</source>
        <translation>ミリ秒</translation>
    </message>
    <message>
        <source>&amp;Leave out recordings shorter than</source>
        <translation>これより短い録音を除外(&amp;L)</translation>
    </message>
    <message>
        <source>Leave out short recordings</source>
        <translation>短い録音を除外</translation>
    </message>
    <message>
        <source>Shortest recording in seconds</source>
        <translation>最短の録音 (秒)</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>&amp;Begin before the first sound by</source>
        <translation>最初の音の前に含める時間(&amp;B)</translation>
    </message>
    <message>
        <source>Time before the first sound in milliseconds</source>
        <translation>最初の音より前の時間 (ミリ秒)</translation>
    </message>
    <message>
        <source>A recording of computer audio waits for the first sound. It then contains this much of the time before it.</source>
        <translation>コンピューター音声の録音は最初の音を待って始まり、その前のこの長さの時間も含みます。</translation>
    </message>
    <message>
        <source>Computer audio</source>
        <translation>コンピューター音声</translation>
    </message>
    <message>
        <source>State of the computer-audio device</source>
        <translation>コンピューター音声デバイスの状態</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>インストール(&amp;I)</translation>
    </message>
    <message>
        <source>Install the computer-audio device</source>
        <translation>コンピューター音声デバイスをインストール</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>削除(&amp;M)</translation>
    </message>
    <message>
        <source>Remove the computer-audio device</source>
        <translation>コンピューター音声デバイスを削除</translation>
    </message>
    <message>
        <source>Working on the computer-audio device</source>
        <translation>コンピューター音声デバイスの処理中</translation>
    </message>
    <message>
        <source>Problem of the computer-audio device</source>
        <translation>コンピューター音声デバイスの問題</translation>
    </message>
    <message>
        <source>Shortcuts from any program</source>
        <translation>グローバルショートカット</translation>
    </message>
    <message>
        <source>Star&amp;t or stop:</source>
        <translation>開始/停止(&amp;T):</translation>
    </message>
    <message>
        <source>Shortcut for start and stop</source>
        <translation>開始と停止のショートカット</translation>
    </message>
    <message>
        <source>&amp;Pause or resume:</source>
        <translation>一時停止/再開(&amp;P):</translation>
    </message>
    <message>
        <source>Shortcut for pause and resume</source>
        <translation>一時停止と再開のショートカット</translation>
    </message>
    <message>
        <source>&amp;New recording:</source>
        <translation>新しい録音(&amp;N):</translation>
    </message>
    <message>
        <source>Shortcut for a new recording</source>
        <translation>新しい録音のショートカット</translation>
    </message>
    <message>
        <source>Use the &amp;Defaults</source>
        <translation>既定値を使用(&amp;D)</translation>
    </message>
    <message>
        <source>Use the default shortcuts</source>
        <translation>既定のショートカットを使用</translation>
    </message>
    <message>
        <source>How to bind keys on this desktop</source>
        <translation>このデスクトップでのキーの割り当て方</translation>
    </message>
    <message>
        <source>Commands to bind</source>
        <translation>割り当てるコマンド</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>デスクトップ</translation>
    </message>
    <message>
        <source>N&amp;otify when a recording ends in the background</source>
        <translation>バックグラウンドで録音が終わったら通知(&amp;O)</translation>
    </message>
    <message>
        <source>Notify when a recording ends in the background</source>
        <translation>バックグラウンドで録音が終わったら通知</translation>
    </message>
    <message>
        <source>A notification tells of finished and cut recordings, and of problems, while the window is not in front.</source>
        <translation>ウィンドウが前面にないとき、録音の終了や切り替え、問題を通知します。</translation>
    </message>
    <message>
        <source>St&amp;art with the desktop, hidden</source>
        <translation>ログイン時に非表示で起動(&amp;A)</translation>
    </message>
    <message>
        <source>Start with the desktop, hidden</source>
        <translation>ログイン時に非表示で起動</translation>
    </message>
    <message>
        <source>Sonaphex waits in the status bar after you log in.</source>
        <translation>ログインすると、Sonaphex がシステムトレイで待機します。</translation>
    </message>
    <message>
        <source>Ta&amp;ke titles and covers from the media player</source>
        <translation>メディアプレーヤーからタイトルとカバーを取得(&amp;E)</translation>
    </message>
    <message>
        <source>Take titles and covers from the media player</source>
        <translation>メディアプレーヤーからタイトルとカバーを取得</translation>
    </message>
    <message>
        <source>A recording of computer audio gets the title, artist, album and cover that the media player names for most of its length. Its file name stays as it is.</source>
        <translation>コンピューター音声の録音に、録音時間の大半でメディアプレーヤーが示していたタイトル、アーティスト、アルバム、カバーを付けます。ファイル名は変わりません。</translation>
    </message>
    <message>
        <source>Split &amp;computer audio when the media player changes the track</source>
        <translation>メディアプレーヤーの曲が変わったらコンピューター音声を分割(&amp;C)</translation>
    </message>
    <message>
        <source>Split computer audio when the media player changes the track</source>
        <translation>メディアプレーヤーの曲が変わったらコンピューター音声を分割</translation>
    </message>
    <message>
        <source>For albums without silences between the tracks.</source>
        <translation>曲間に無音がないアルバム向けです。</translation>
    </message>
    <message>
        <source>K&amp;eep both tracks beside the mix</source>
        <translation>ミックスと一緒に両方のトラックを残す(&amp;K)</translation>
    </message>
    <message>
        <source>Keep both tracks beside the mix</source>
        <translation>ミックスと一緒に両方のトラックを残す</translation>
    </message>
    <message>
        <source>A recording of both sources then also keeps the input and computer audio, each as a file of its own. Balance… mixes them anew. This takes three times the disk space, and more time after the recording.</source>
        <translation>両方のソースの録音で、入力とコンピューター音声も、それぞれ別のファイルとして残します。「音量バランス…」でミックスし直せます。ディスク容量が 3 倍必要になり、録音後の処理にも時間がかかります。</translation>
    </message>
</context>
<context>
    <name>PreferenceWndController</name>
    <message>
        <source>Start or stop the recording</source>
        <translation>録音の開始または停止</translation>
    </message>
    <message>
        <source>Pause or resume the recording</source>
        <translation>録音の一時停止または再開</translation>
    </message>
    <message>
        <source>Start a new recording</source>
        <translation>新しい録音を開始</translation>
    </message>
    <message>
        <source>Sonaphex cannot be started with the desktop.</source>
        <translation>ログイン時に Sonaphex を起動できません。</translation>
    </message>
    <message>
        <source>Sonaphex is still started with the desktop.</source>
        <translation>Sonaphex は引き続きログイン時に起動します。</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Nothing is split at a silence: check the box first.</source>
        <translation>無音での分割は行われません。先にチェックを入れてください。</translation>
    </message>
    <message>
        <source>All recordings are kept: check the box first.</source>
        <translation>すべての録音が残ります。先にチェックを入れてください。</translation>
    </message>
    <message>
        <source>Installing the computer-audio device…</source>
        <translation>コンピューター音声デバイスをインストールしています…</translation>
    </message>
    <message>
        <source>Removing the computer-audio device…</source>
        <translation>コンピューター音声デバイスを削除しています…</translation>
    </message>
    <message>
        <source>The computer-audio device is installed.</source>
        <translation>コンピューター音声デバイスはインストールされています。</translation>
    </message>
    <message>
        <source>The computer-audio device is not installed.</source>
        <translation>コンピューター音声デバイスはインストールされていません。</translation>
    </message>
    <message>
        <source>It is installed already.</source>
        <translation>すでにインストールされています。</translation>
    </message>
    <message>
        <source>There is nothing to remove.</source>
        <translation>削除するものがありません。</translation>
    </message>
    <message>
        <source>This desktop does not allow global shortcuts.</source>
        <translation>このデスクトップではグローバルショートカットを使えません。</translation>
    </message>
    <message>
        <source>This desktop does not allow global shortcuts. Bind these commands to keys in the desktop&apos;s own keyboard settings:</source>
        <translation>このデスクトップではグローバルショートカットを使えません。デスクトップのキーボード設定で、次のコマンドをキーに割り当ててください:</translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation>警告:</translation>
    </message>
    <message>
        <source>You cannot save files in the folder. Read and write privilege is needed.</source>
        <translation>このフォルダーにはファイルを保存できません。読み書きの権限が必要です。</translation>
    </message>
    <message>
        <source>Can not insert the system audio device, Please try it again.</source>
        <translation>システム音声デバイスを追加できません。もう一度お試しください。</translation>
    </message>
</context>
<context>
    <name>ProcessWnd</name>
    <message>
        <source>Burn Progress</source>
        <translation>書き込みの進捗</translation>
    </message>
    <message>
        <source>Burn progress</source>
        <translation>書き込みの進捗</translation>
    </message>
    <message>
        <source>Burn state</source>
        <translation>書き込みの状態</translation>
    </message>
</context>
<context>
    <name>ProcessWndController</name>
    <message>
        <source>A burn cannot be stopped before it has written 4 %.</source>
        <translation>書き込みは 4 % 進むまで中止できません。</translation>
    </message>
    <message>
        <source>Stops the burn; the disc is then unusable.</source>
        <translation>書き込みを中止します。ディスクは使えなくなります。</translation>
    </message>
    <message>
        <source>Burn Progress:</source>
        <translation>書き込みの進捗:</translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation>警告:</translation>
    </message>
    <message>
        <source>Are you sure to end the task?</source>
        <translation>この処理を終了してもよろしいですか?</translation>
    </message>
    <message>
        <source>Please waiting a moment ...</source>
        <translation>しばらくお待ちください ...</translation>
    </message>
    <message>
        <source>Burning Disc...</source>
        <translation>ディスクに書き込んでいます...</translation>
    </message>
</context>
<context>
    <name>ProgramsMenu</name>
    <message>
        <source>Programs to record</source>
        <translation>録音するプログラム</translation>
    </message>
    <message>
        <source>Programs to record: %1</source>
        <translation>録音するプログラム: %1</translation>
    </message>
    <message>
        <source>Of computer audio, this is recorded: %1</source>
        <translation>コンピューターの音声のうち録音するもの: %1</translation>
    </message>
    <message>
        <source>The sources stay as they are until the recording ends.</source>
        <translation>録音が終わるまでソースは変更できません。</translation>
    </message>
    <message>
        <source>The computer-audio device is not installed.</source>
        <translation>コンピューター音声デバイスはインストールされていません。</translation>
    </message>
    <message>
        <source>&amp;Everything</source>
        <translation>すべて(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Only</source>
        <translation>次だけ(&amp;O)</translation>
    </message>
    <message>
        <source>Everything &amp;but</source>
        <translation>次を除くすべて(&amp;B)</translation>
    </message>
    <message>
        <source>No program has played yet</source>
        <translation>まだ再生したプログラムはありません</translation>
    </message>
    <message>
        <source>P&amp;rograms to Record</source>
        <translation>録音するプログラム(&amp;R)</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>不明なオプション「%1」です。</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>不明なオプションです: %1。</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>「%1」の後に値がありません。</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>「%1」の後に予期しない値があります。</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The sound server does not answer yet. Waiting for it…</source>
        <translation>サウンドサーバーの応答がまだありません。待っています…</translation>
    </message>
    <message>
        <source>Do Not Wait</source>
        <translation>待たない</translation>
    </message>
    <message>
        <source>The device stays as it is until the recording ends.</source>
        <translation>録音が終わるまでデバイスは変更できません。</translation>
    </message>
</context>
<context>
    <name>Record</name>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 に書き込めません</translation>
    </message>
    <message>
        <source>Rec..</source>
        <translation>録音..</translation>
    </message>
    <message>
        <source>Rec</source>
        <translation>録音</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>Waiting for the first sound</source>
        <translation>最初の音を待っています</translation>
    </message>
    <message>
        <source>Recording %1</source>
        <translation>録音中 %1</translation>
    </message>
    <message>
        <source>Paused %1</source>
        <translation>一時停止中 %1</translation>
    </message>
    <message>
        <source>Finishing the recording</source>
        <translation>録音の仕上げ処理中</translation>
    </message>
    <message>
        <source>         Audio File Converting
         Please Wait ..</source>
        <translation>         音声ファイルを変換しています
         お待ちください ..</translation>
    </message>
    <message>
        <source>         Audio File Converting
         Please Wait </source>
        <translation>         音声ファイルを変換しています
         お待ちください </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>two paths</comment>
        <translation>%1 と %2</translation>
    </message>
    <message>
        <source>the reason is unknown</source>
        <translation>理由は不明です</translation>
    </message>
    <message>
        <source>The recording is kept, and moved by the next start when there is room, at</source>
        <comment>a path follows</comment>
        <translation>録音は保存されており、空き容量があれば次回の起動時に移動します。保存先:</translation>
    </message>
    <message>
        <source>The recording is kept at</source>
        <comment>a path follows</comment>
        <translation>録音の保存先:</translation>
    </message>
    <message>
        <source>It is kept, and moved by the next start when there is room, at</source>
        <comment>the source of a recording; a path follows</comment>
        <translation>このソースは保存されており、空き容量があれば次回の起動時に移動します。保存先:</translation>
    </message>
    <message>
        <source>It is kept at</source>
        <comment>the source of a recording; a path follows</comment>
        <translation>このソースの保存先:</translation>
    </message>
    <message>
        <source>What it was made from is kept, and moved by the next start when there is room, at</source>
        <comment>a path follows</comment>
        <translation>元のデータは保存されており、空き容量があれば次回の起動時に移動します。保存先:</translation>
    </message>
    <message>
        <source>What it was made from is kept at</source>
        <comment>a path follows</comment>
        <translation>元のデータの保存先:</translation>
    </message>
    <message>
        <source>A part of the recording could not be written (error %1). What was written is kept.</source>
        <translation>録音の一部を書き込めませんでした (エラー %1)。書き込んだ部分は保存されています。</translation>
    </message>
    <message>
        <source>%1: %2 could not be saved in “%3”.</source>
        <translation>%1: %2 を「%3」に保存できませんでした。</translation>
    </message>
    <message>
        <source>%1 could not be finished: %2.</source>
        <translation>%1 を完了できませんでした: %2。</translation>
    </message>
    <message>
        <source>One source of %1 could not be read (%2) and is missing in it.</source>
        <translation>%1 のソースの 1 つを読み取れず (%2)、録音に含まれていません。</translation>
    </message>
    <message>
        <source>%1 could not be mixed: %2.</source>
        <translation>%1 をミックスできませんでした: %2。</translation>
    </message>
    <message>
        <source>The disk is nearly full: %1 could not be mixed, which needs %2 MB; %3 MB are left.</source>
        <translation>ディスクがほぼいっぱいです: %1 をミックスできませんでした。%2 MB 必要ですが、残りは %3 MB です。</translation>
    </message>
    <message>
        <source>%1 could not be encoded: %2.</source>
        <translation>%1 をエンコードできませんでした: %2。</translation>
    </message>
    <message>
        <source>A part of %1 could not be read (%2) and is missing in it.</source>
        <translation>%1 の一部を読み取れず (%2)、その部分が欠けています。</translation>
    </message>
    <message>
        <source>%1 could not be tagged. Its audio is complete.</source>
        <translation>%1 にタグを付けられませんでした。音声は完全です。</translation>
    </message>
    <message>
        <source>less than a minute</source>
        <translation>1 分未満</translation>
    </message>
    <message>
        <source>about 1 minute</source>
        <translation>約 1 分</translation>
    </message>
    <message numerus="yes">
        <source>about %n minutes</source>
        <translation>
            <numerusform>約 %n 分</numerusform>
        </translation>
    </message>
    <message>
        <source>Waring:</source>
        <translation>警告:</translation>
    </message>
    <message>
        <source>The application is reading your USB headset data, please do not unplug your USB headset, if you want to unplug your USB headset please turn off this application first， Otherwise give your computer some trouble.</source>
        <translation>このアプリケーションは USB ヘッドセットのデータを読み取っています。USB ヘッドセットを取り外さないでください。取り外す場合は、先にこのアプリケーションを終了してください。そうしないと、コンピューターに問題が起きることがあります。</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2. Nothing is heard from it until it can.</source>
        <translation>%1 を開けません: %2。開けるようになるまで、このデバイスの音は聞こえません。</translation>
    </message>
    <message>
        <source>%1 is gone. There is no other input device: connect one.</source>
        <translation>%1 が見つからなくなりました。ほかに入力デバイスがありません。接続してください。</translation>
    </message>
    <message>
        <source>%1 is gone. %2 takes its place until it is back.</source>
        <translation>%1 が見つからなくなりました。戻るまで %2 を代わりに使います。</translation>
    </message>
    <message>
        <source>The input device</source>
        <translation>入力デバイス</translation>
    </message>
    <message>
        <source>the input device</source>
        <translation>入力デバイス</translation>
    </message>
    <message>
        <source>Computer audio</source>
        <translation>コンピューター音声</translation>
    </message>
    <message>
        <source>computer audio</source>
        <translation>コンピューター音声</translation>
    </message>
    <message>
        <source>Add-on required to record the system audio.</source>
        <translation>システム音声の録音にはアドオンが必要です。</translation>
    </message>
    <message>
        <source>KorvanAudioDevice is easy to use, it simply accept system audio data, allowing any audio application to send and receive audio with no other support needed. KorvanAudioDevice is free, and runs on Linux computers. This driver will only be used by Sonaphex.</source>
        <translation>KorvanAudioDevice は簡単に使えます。システムの音声データを受け取るだけで、追加の対応なしに、どの音声アプリケーションでも音声を送受信できるようになります。KorvanAudioDevice は無料で、Linux コンピューターで動作します。このドライバーを使うのは Sonaphex だけです。</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>インストール</translation>
    </message>
    <message>
        <source>Please stop your recording.</source>
        <translation>録音を停止してください。</translation>
    </message>
    <message>
        <source>Stop Record</source>
        <translation>録音を停止</translation>
    </message>
    <message>
        <source>Start Record</source>
        <translation>録音を開始</translation>
    </message>
    <message>
        <source>Pause Record</source>
        <translation>録音を一時停止</translation>
    </message>
    <message>
        <source>Nothing is being recorded</source>
        <translation>録音していません</translation>
    </message>
    <message>
        <source>The input device does not deliver. Nothing is recorded.</source>
        <translation>入力デバイスから音声が届きません。何も録音されません。</translation>
    </message>
    <message>
        <source>Computer audio does not deliver. Nothing is recorded.</source>
        <translation>コンピューター音声が届きません。何も録音されません。</translation>
    </message>
    <message>
        <source>There is no input device. Nothing is recorded.</source>
        <translation>入力デバイスがありません。何も録音されません。</translation>
    </message>
    <message>
        <source>The input device does not deliver (%1). Nothing is recorded.</source>
        <translation>入力デバイスから音声が届きません (%1)。何も録音されません。</translation>
    </message>
    <message>
        <source>%1 is off: it did not start. This recording goes without it.</source>
        <translation>%1はオフです: 開始できませんでした。この録音には含まれません。</translation>
    </message>
    <message>
        <source>%1 is off: it did not start (%2). This recording goes without it.</source>
        <translation>%1はオフです: 開始できませんでした (%2)。この録音には含まれません。</translation>
    </message>
    <message>
        <source>%1 is not being recorded: %2.</source>
        <translation>%1は録音されていません: %2。</translation>
    </message>
    <message>
        <source>The recording could not be split (%1). It continues in the same file.</source>
        <translation>録音を分割できませんでした (%1)。同じファイルで続けます。</translation>
    </message>
    <message>
        <source>The sound server</source>
        <translation>サウンドサーバー</translation>
    </message>
    <message>
        <source>%1 went away. The wait for the first sound continues when it is back.</source>
        <translation>%1が使えなくなりました。復帰すると、最初の音の待機を続けます。</translation>
    </message>
    <message>
        <source>%1 went away. The recording so far is kept and continues when it is back.</source>
        <translation>%1が使えなくなりました。これまでの録音は保存されており、復帰すると続きを録音します。</translation>
    </message>
    <message>
        <source>%1 is back. The wait for the first sound goes on.</source>
        <translation>%1が復帰しました。最初の音の待機を続けます。</translation>
    </message>
    <message>
        <source>%1 s are missing: %2 was away. The recording goes on.</source>
        <translation>%1 秒分が欠けています: %2が使えませんでした。録音は続いています。</translation>
    </message>
    <message>
        <source>%1 s are missing (%2 frames): the computer was too busy to take them.</source>
        <translation>%1 秒分 (%2 フレーム) が欠けています: コンピューターの負荷が高く、取り込めませんでした。</translation>
    </message>
    <message>
        <source>The disk is full. Nothing more is recorded until there is room; what was recorded is kept.</source>
        <translation>ディスクがいっぱいです。空きができるまで録音されません。録音済みの部分は保存されています。</translation>
    </message>
    <message>
        <source>%1. Nothing more is recorded; what was recorded is kept.</source>
        <translation>%1。これ以上は録音されません。録音済みの部分は保存されています。</translation>
    </message>
    <message>
        <source>Computer audio has been silent for %1 s: nothing plays.</source>
        <translation>コンピューター音声は %1 秒間無音です: 何も再生されていません。</translation>
    </message>
    <message>
        <source>Computer audio has been silent for %1 s: nothing plays on %2, the output that is recorded.</source>
        <translation>コンピューター音声は %1 秒間無音です: 録音対象の出力 %2 で何も再生されていません。</translation>
    </message>
    <message>
        <source>The input device is muted: only silence has been recorded for %1 s.</source>
        <translation>入力デバイスがミュートされています: %1 秒間、無音だけが録音されています。</translation>
    </message>
    <message>
        <source>The input device has delivered only silence for %1 s. It may be switched off, or the wrong one: another one can be chosen when the recording is stopped.</source>
        <translation>入力デバイスは %1 秒間無音です。デバイスがオフか、別のデバイスを選んでいる可能性があります。録音を停止すると選び直せます。</translation>
    </message>
    <message>
        <source>The disk is nearly full: there is room for %1 of recording.</source>
        <translation>ディスクがほぼいっぱいです: 録音できるのはあと%1です。</translation>
    </message>
    <message>
        <source>%1 s are missing: the disk was full. The recording went on in another file.</source>
        <translation>%1 秒分が欠けています: ディスクがいっぱいでした。録音は別のファイルで続きました。</translation>
    </message>
    <message>
        <source>An earlier recording could not be finished. It is kept at</source>
        <comment>a path follows</comment>
        <translation>以前の録音を完了できませんでした。保存先:</translation>
    </message>
    <message numerus="yes">
        <source>%n earlier recordings could not be finished. They are kept in</source>
        <comment>a path follows</comment>
        <translation>
            <numerusform>以前の録音 %n 件を完了できませんでした。保存先:</numerusform>
        </translation>
    </message>
    <message>
        <source>Resume Record</source>
        <translation>録音を再開</translation>
    </message>
    <message>
        <source>the input unit cannot be opened</source>
        <translation>入力ユニットを開けません</translation>
    </message>
    <message>
        <source>there is no input unit</source>
        <translation>入力ユニットがありません</translation>
    </message>
    <message>
        <source>the unit&apos;s output cannot be switched off</source>
        <translation>ユニットの出力をオフにできません</translation>
    </message>
    <message>
        <source>the device cannot be used</source>
        <translation>デバイスを使用できません</translation>
    </message>
    <message>
        <source>the device accepts no callback</source>
        <translation>デバイスがコールバックを受け付けません</translation>
    </message>
    <message>
        <source>the device&apos;s format cannot be read</source>
        <translation>デバイスの形式を読み取れません</translation>
    </message>
    <message>
        <source>the device&apos;s format cannot be captured</source>
        <translation>デバイスの形式では取り込めません</translation>
    </message>
    <message>
        <source>the device&apos;s buffer size cannot be read</source>
        <translation>デバイスのバッファーサイズを読み取れません</translation>
    </message>
    <message>
        <source>the unit cannot be initialised</source>
        <translation>ユニットを初期化できません</translation>
    </message>
    <message>
        <source>not enough memory</source>
        <translation>メモリーが足りません</translation>
    </message>
    <message>
        <source>the device cannot be started</source>
        <translation>デバイスを開始できません</translation>
    </message>
    <message>
        <source>Less than a minute left on this disk</source>
        <translation>このディスクの録音可能時間: 1 分未満</translation>
    </message>
    <message>
        <source>About %1 min left on this disk</source>
        <translation>このディスクの録音可能時間: 約 %1 分</translation>
    </message>
    <message>
        <source>About %1 h %2 min left on this disk</source>
        <translation>このディスクの録音可能時間: 約 %1 時間 %2 分</translation>
    </message>
    <message>
        <source>%1 is complete, but its tracks could not be kept: %2.</source>
        <translation>%1 は完成しましたが、トラックを残せませんでした: %2。</translation>
    </message>
    <message>
        <source>the disk is nearly full</source>
        <translation>ディスクがほぼいっぱいです</translation>
    </message>
    <message>
        <source>%1 could not be saved beside its recording: %2.</source>
        <translation>%1 を録音と同じ場所に保存できませんでした: %2。</translation>
    </message>
    <message>
        <source>An interrupted recording is complete now:</source>
        <comment>a path follows</comment>
        <translation>中断された録音が完成しました:</translation>
    </message>
    <message>
        <source>the recorded sound of a source is missing</source>
        <translation>ソースの録音データがありません</translation>
    </message>
</context>
<context>
    <name>RecordPanel</name>
    <message>
        <source>Nothing is being recorded.</source>
        <translation>録音していません。</translation>
    </message>
    <message>
        <source>Choose the input, computer audio, or both first.</source>
        <translation>先に入力、コンピューター音声、または両方を選んでください。</translation>
    </message>
    <message>
        <source>Select a recording first. Nothing is played while recording.</source>
        <translation>先に録音を選択してください。録音中は再生できません。</translation>
    </message>
    <message>
        <source>The sources stay as they are until the recording ends.</source>
        <translation>録音が終わるまでソースは変更できません。</translation>
    </message>
    <message>
        <source>Record the chosen input device</source>
        <translation>選択した入力デバイスを録音します</translation>
    </message>
    <message>
        <source>Record what the computer plays</source>
        <translation>コンピューターの再生音を録音します</translation>
    </message>
    <message>
        <source>%1 s lost</source>
        <translation>%1 秒欠落</translation>
    </message>
    <message>
        <source>No frames lost</source>
        <translation>フレームの欠落なし</translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation>%1 フレーム</translation>
    </message>
    <message>
        <source>Nothing is being recorded</source>
        <translation>録音していません</translation>
    </message>
    <message>
        <source>No sound server</source>
        <translation>サウンドサーバーなし</translation>
    </message>
    <message>
        <source>No input device</source>
        <translation>入力デバイスなし</translation>
    </message>
    <message>
        <source>Waiting for the first sound of computer audio</source>
        <translation>コンピューター音声の最初の音を待っています</translation>
    </message>
    <message>
        <source>No sound server: a test tone is recorded</source>
        <translation>サウンドサーバーなし: テスト音を録音しています</translation>
    </message>
    <message>
        <source>No device</source>
        <translation>デバイスなし</translation>
    </message>
    <message>
        <source>No input device was found.</source>
        <translation>入力デバイスが見つかりません。</translation>
    </message>
    <message>
        <source>The input is not recorded: check the box first.</source>
        <translation>入力は録音されません。先にチェックを入れてください。</translation>
    </message>
    <message>
        <source>Cut to another recording</source>
        <translation>次の録音に切り替え</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
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
        <translation>%1 と %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>Only %1</source>
        <translation>%1 だけ</translation>
    </message>
    <message>
        <source>Everything but %1</source>
        <translation>%1 以外のすべて</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation>%1 を待っています</translation>
    </message>
</context>
<context>
    <name>RecordStateController</name>
    <message>
        <source>A recording is running.</source>
        <translation>録音中です。</translation>
    </message>
    <message>
        <source>%1 is off: %2.</source>
        <translation>%1 はオフです: %2。</translation>
    </message>
    <message>
        <source>Computer audio (%1) has been silent for %2 s: nothing plays.</source>
        <translation>コンピューターの音声 (%1) は %2 秒間無音です。何も再生されていません。</translation>
    </message>
    <message>
        <source>another recording of computer audio runs with other programs</source>
        <translation>別のプログラムを選んだコンピューターの音声の録音が実行中です</translation>
    </message>
    <message>
        <source>the computer-audio device cannot choose programs; remove it and install it again</source>
        <translation>コンピューター音声のデバイスはプログラムを選べません。削除してからもう一度インストールしてください</translation>
    </message>
</context>
<context>
    <name>RecordingJoin</name>
    <message>
        <source>The recordings were not joined.</source>
        <translation>録音は連結されませんでした。</translation>
    </message>
    <message>
        <source>The file is no longer there: %1</source>
        <translation>ファイルはもうありません: %1</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>連結</translation>
    </message>
    <message>
        <source>This path exists, please change the path or name.</source>
        <translation>このパスはすでに存在します。パスまたは名前を変更してください。</translation>
    </message>
    <message numerus="yes">
        <source>Joining %n recordings…</source>
        <translation>
            <numerusform>%n 件の録音を連結しています…</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” was made. The recordings are not parts of one recording, so the sound was encoded again.</source>
        <translation>「%1」を作成しました。1 つの録音を分けたものではないため、音声を再エンコードしました。</translation>
    </message>
    <message>
        <source>“%1” was made. The sound was copied without encoding it again.</source>
        <translation>「%1」を作成しました。音声は再エンコードせずにコピーしました。</translation>
    </message>
</context>
<context>
    <name>RecordingNotifier</name>
    <message>
        <source>“%1” was not kept: it is too short.</source>
        <translation>「%1」は短すぎるため、保存されませんでした。</translation>
    </message>
    <message>
        <source>Recording not kept</source>
        <translation>録音は保存されませんでした</translation>
    </message>
    <message>
        <source>About the recording</source>
        <translation>録音について</translation>
    </message>
    <message>
        <source>Recording cut; the next one runs</source>
        <translation>録音を切り替えました。次を録音中です</translation>
    </message>
    <message>
        <source>Recording finished</source>
        <translation>録音が終わりました</translation>
    </message>
    <message numerus="yes">
        <source>%n recordings finished</source>
        <translation>
            <numerusform>%n 件の録音が終わりました</numerusform>
        </translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
</context>
<context>
    <name>RecordingRename</name>
    <message>
        <source>the title is empty</source>
        <translation>タイトルが空です</translation>
    </message>
    <message>
        <source>a file name cannot contain “/”</source>
        <translation>ファイル名に「/」は使えません</translation>
    </message>
    <message>
        <source>the title has a character that no file name can contain</source>
        <translation>タイトルにファイル名に使えない文字が含まれています</translation>
    </message>
    <message>
        <source>the title is longer than a file name can be</source>
        <translation>タイトルがファイル名の長さの上限を超えています</translation>
    </message>
    <message>
        <source>there is already a file named “%1” in its folder</source>
        <translation>同じフォルダーに「%1」という名前のファイルがすでにあります</translation>
    </message>
    <message>
        <source>The file keeps its name “%1”: %2.</source>
        <translation>ファイル名は「%1」のままです: %2。</translation>
    </message>
</context>
<context>
    <name>RingtoneMaker</name>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1 を読み取れません</translation>
    </message>
    <message>
        <source>no folder for ringtones is known</source>
        <translation>着信音のフォルダーが不明です</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 に書き込めません</translation>
    </message>
</context>
<context>
    <name>RingtoneMakerBackgroundView</name>
    <message>
        <source>Ringtone</source>
        <translation>着信音</translation>
    </message>
</context>
<context>
    <name>RingtoneMakerViewController</name>
    <message>
        <source>Outline of the recording</source>
        <translation>録音の波形</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>再生(&amp;P)</translation>
    </message>
    <message>
        <source>Pre&amp;view</source>
        <translation>プレビュー(&amp;V)</translation>
    </message>
    <message>
        <source>Play the selection again and again</source>
        <translation>選択範囲を繰り返し再生します</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>開始(&amp;F)</translation>
    </message>
    <message>
        <source>Begin of the selection</source>
        <translation>選択範囲の先頭</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>終了(&amp;T)</translation>
    </message>
    <message>
        <source>End of the selection</source>
        <translation>選択範囲の末尾</translation>
    </message>
    <message>
        <source>Length of the selection</source>
        <translation>選択範囲の長さ</translation>
    </message>
    <message>
        <source>Fade &amp;in</source>
        <translation>フェードイン(&amp;I)</translation>
    </message>
    <message>
        <source>Seconds of the fade-in</source>
        <translation>フェードインの秒数</translation>
    </message>
    <message>
        <source> s</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source>Fade &amp;out</source>
        <translation>フェードアウト(&amp;O)</translation>
    </message>
    <message>
        <source>Seconds of the fade-out</source>
        <translation>フェードアウトの秒数</translation>
    </message>
    <message>
        <source>The boxes are for listening. The ringtone fades over these times; under one second there is no fade.</source>
        <translation>チェックボックスは試聴用です。着信音はこの秒数でフェードします。1 秒未満ではフェードしません。</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>問題</translation>
    </message>
    <message>
        <source>Open in the player when &amp;done</source>
        <translation>完了後にプレーヤーで開く(&amp;D)</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進捗</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>&amp;Make Ringtone</source>
        <translation>着信音を作成(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>一時停止(&amp;P)</translation>
    </message>
    <message>
        <source>Ringtone from “%1”</source>
        <translation>「%1」の着信音</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>This recording cannot be read: %1</source>
        <translation>この録音を読み取れません: %1</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>This recording cannot be read.</source>
        <translation>この録音を読み取れません。</translation>
    </message>
    <message>
        <source>Select a part of the recording first.</source>
        <translation>先に録音の一部を選択してください。</translation>
    </message>
    <message>
        <source>This recording cannot be played.</source>
        <translation>この録音を再生できません。</translation>
    </message>
    <message>
        <source>This recording cannot be played: %1</source>
        <translation>この録音を再生できません: %1</translation>
    </message>
    <message>
        <source>The ringtone could not be made.</source>
        <translation>着信音を作成できませんでした。</translation>
    </message>
    <message>
        <source>The recording is damaged. The ringtone is silent where it could not be read.</source>
        <translation>録音が破損しています。読み取れなかった部分の着信音は無音です。</translation>
    </message>
    <message>
        <source>No player could be opened for “%1”.</source>
        <translation>「%1」を開くプレーヤーを起動できませんでした。</translation>
    </message>
    <message>
        <source>The ringtone is in the library.</source>
        <translation>着信音をライブラリに追加しました。</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Search titles, artists and albums</source>
        <translation>タイトル、アーティスト、アルバムを検索</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>検索を消去</translation>
    </message>
</context>
<context>
    <name>SplitEditView</name>
    <message>
        <source>Cut %1 of %2, %3</source>
        <translation>分割位置 %1/%2、%3</translation>
    </message>
    <message>
        <source>Cuts of the recording</source>
        <translation>録音の分割位置</translation>
    </message>
    <message>
        <source>Play position</source>
        <translation>再生位置</translation>
    </message>
    <message>
        <source>Current cut</source>
        <translation>現在の分割位置</translation>
    </message>
</context>
<context>
    <name>SplitPartsModel</name>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>長さ</translation>
    </message>
</context>
<context>
    <name>SplitWnd</name>
    <message>
        <source>Split at Silences</source>
        <translation>無音で分割</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>録音</translation>
    </message>
    <message>
        <source>Play time</source>
        <translation>再生時間</translation>
    </message>
    <message>
        <source>Visible part of the recording</source>
        <translation>録音の表示範囲</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>&amp;Listen to Cut</source>
        <translation>試聴(&amp;L)</translation>
    </message>
    <message>
        <source>Play from two seconds before the cut to two seconds behind it</source>
        <translation>分割位置の 2 秒前から 2 秒後までを再生します</translation>
    </message>
    <message>
        <source>&amp;Add Cut</source>
        <translation>分割位置を追加(&amp;A)</translation>
    </message>
    <message>
        <source>Cut at the play position</source>
        <translation>再生位置で分割します</translation>
    </message>
    <message>
        <source>Re&amp;move Cut</source>
        <translation>分割位置を削除(&amp;M)</translation>
    </message>
    <message>
        <source>Take the current cut away</source>
        <translation>現在の分割位置を取り除きます</translation>
    </message>
    <message>
        <source>Rese&amp;t Cuts</source>
        <translation>リセット(&amp;T)</translation>
    </message>
    <message>
        <source>Take back the cuts that you added, moved and removed</source>
        <translation>分割位置の追加、移動、削除を取り消します</translation>
    </message>
    <message>
        <source>L&amp;evel</source>
        <translation>レベル(&amp;E)</translation>
    </message>
    <message>
        <source>Level below which it is silent, in decibels</source>
        <translation>無音とみなすレベルの上限 (デシベル)</translation>
    </message>
    <message>
        <source>Value of Level</source>
        <translation>レベルの値</translation>
    </message>
    <message>
        <source>Len&amp;gth</source>
        <translation>長さ(&amp;G)</translation>
    </message>
    <message>
        <source>Length of the shortest silence, in tenths of a second</source>
        <translation>最短の無音の長さ (0.1 秒単位)</translation>
    </message>
    <message>
        <source>Value of Length</source>
        <translation>長さの値</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>分割後の録音</translation>
    </message>
    <message>
        <source>&amp;Delete the recording when its parts are written</source>
        <translation>分割後の録音を書き込んだら元の録音を削除(&amp;D)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>&amp;Split</source>
        <translation>分割(&amp;S)</translation>
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
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>Searching for silences… %1 %</source>
        <translation>無音を検索しています… %1 %</translation>
    </message>
    <message>
        <source>No silence found at this level. Choose a higher level, or add cuts yourself.</source>
        <translation>このレベルでは無音が見つかりません。レベルを上げるか、分割位置を自分で追加してください。</translation>
    </message>
    <message>
        <source>No silence is long enough. The longest silence found: %1 s.</source>
        <translation>十分な長さの無音がありません。見つかった最長の無音: %1 秒。</translation>
    </message>
    <message>
        <source>One cut. The longest silence found: %1 s.</source>
        <translation>分割位置は 1 か所です。見つかった最長の無音: %1 秒。</translation>
    </message>
    <message numerus="yes">
        <source>%n cuts. The longest silence found: %1 s.</source>
        <translation>
            <numerusform>分割位置は %n か所です。見つかった最長の無音: %1 秒。</numerusform>
        </translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Writing the parts…</source>
        <translation>分割後の録音を書き込んでいます…</translation>
    </message>
    <message>
        <source>The recording was not split.</source>
        <translation>録音は分割されませんでした。</translation>
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
        <translation>次の録音に切り替え</translation>
    </message>
    <message>
        <source>Show Sonaphex</source>
        <translation>Sonaphex を表示</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
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
        <translation>警告</translation>
    </message>
</context>
<context>
    <name>TrackListModel</name>
    <message>
        <source>The file is no longer there.</source>
        <translation>ファイルはもうありません。</translation>
    </message>
    <message>
        <source>Only files with a tick are burned</source>
        <translation>チェックしたファイルだけを書き込みます</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>書き込み</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
</context>
<context>
    <name>WaitWnd</name>
    <message>
        <source>Please wait</source>
        <translation>お待ちください</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進捗</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
</TS>
