<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>AlertCard</name>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>End session…</source>
        <translation>セッションを終了…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
</context>
<context>
    <name>AlertNotifier</name>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Free RAM…</source>
        <translation>RAM を解放…</translation>
    </message>
    <message>
        <source>End session…</source>
        <translation>セッションを終了…</translation>
    </message>
    <message>
        <source>Quit %1</source>
        <translation>%1 を終了</translation>
    </message>
    <message>
        <source>Cleaning is done</source>
        <translation>クリーンアップ完了</translation>
    </message>
</context>
<context>
    <name>AlertStripView</name>
    <message>
        <source>System looks healthy.</source>
        <translation>システムは正常です。</translation>
    </message>
</context>
<context>
    <name>AlertsTab</name>
    <message>
        <source>Alerts</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>メモリ</translation>
    </message>
    <message>
        <source>Low RAM warning</source>
        <translation>RAM 不足の警告</translation>
    </message>
    <message>
        <source>Free RAM threshold</source>
        <translation>空き RAM のしきい値</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>Notify when RAM is getting tight</source>
        <translation>RAM が少なくなったら通知</translation>
    </message>
    <message>
        <source>Memory pressure</source>
        <translation>メモリ圧迫</translation>
    </message>
    <message>
        <source>Programs wait for memory</source>
        <translation>プログラムがメモリを待っています</translation>
    </message>
    <message>
        <source>Forecast</source>
        <translation>予測</translation>
    </message>
    <message>
        <source>Memory full within 30 minutes</source>
        <translation>30 分以内にメモリが満杯</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>メモリ不足</translation>
    </message>
    <message>
        <source>What was ended because memory ran out</source>
        <translation>メモリ不足で終了されたもの</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>CPU saturation</source>
        <translation>CPU の飽和</translation>
    </message>
    <message>
        <source>CPU threshold</source>
        <translation>CPU のしきい値</translation>
    </message>
    <message>
        <source>Thermal</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Thermal pressure warning</source>
        <translation>過熱の警告</translation>
    </message>
    <message>
        <source>Idle agents</source>
        <translation>アイドルのエージェント</translation>
    </message>
    <message>
        <source>Flag idle Claude / agentic processes</source>
        <translation>アイドルの Claude・エージェントプロセスを知らせる</translation>
    </message>
    <message>
        <source>Min idle</source>
        <translation>最小アイドル時間</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分</translation>
    </message>
    <message>
        <source>Min RAM</source>
        <translation>最小 RAM</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Browsers</source>
        <translation>ブラウザ</translation>
    </message>
    <message>
        <source>Browser RAM dominance</source>
        <translation>ブラウザの RAM 占有</translation>
    </message>
    <message>
        <source>Of total RAM</source>
        <translation>全 RAM に対する割合</translation>
    </message>
    <message>
        <source>Caches</source>
        <translation>キャッシュ</translation>
    </message>
    <message>
        <source>Caches reclaimable</source>
        <translation>回収できるキャッシュ</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>しきい値</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>セッション</translation>
    </message>
    <message>
        <source>Large session</source>
        <translation>大きなセッション</translation>
    </message>
    <message>
        <source>Session holds more than</source>
        <translation>セッションの使用量の上限</translation>
    </message>
    <message>
        <source>Notify</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Notify: %1</source>
        <translation>通知: %1</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Notify of heavy swap usage</source>
        <translation>スワップの多用を通知</translation>
    </message>
    <message>
        <source>Notify of a finished long clean</source>
        <translation>長いクリーンアップの完了を通知</translation>
    </message>
    <message>
        <source>Quiet time</source>
        <translation>通知オフの時間帯</translation>
    </message>
    <message>
        <source>Quiet from</source>
        <translation>開始時刻</translation>
    </message>
    <message>
        <source>Quiet until</source>
        <translation>終了時刻</translation>
    </message>
    <message>
        <source>This desktop has no service that shows notifications.</source>
        <translation>このデスクトップには通知を表示するサービスがありません。</translation>
    </message>
    <message>
        <source>%1%</source>
        <comment>a share</comment>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>AppMenu</name>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
</context>
<context>
    <name>AutoOptimizeCard</name>
    <message>
        <source>Auto-Optimize</source>
        <translation>自動最適化</translation>
    </message>
    <message>
        <source>Every 30 min: kill orphan MCPs + send memory pressure</source>
        <translation>30 分ごと: 孤立した MCP を終了し、メモリ圧迫を送信</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Only safe actions run on the timer. Quitting visible apps stays manual on purpose.</source>
        <translation>タイマーで実行されるのは安全な操作だけです。表示中のアプリの終了は、意図的に手動のままにしています。</translation>
    </message>
    <message>
        <source>Running in background</source>
        <translation>バックグラウンドで実行中</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
</context>
<context>
    <name>CacheCard</name>
    <message>
        <source>Not scanned yet</source>
        <translation>未スキャン</translation>
    </message>
    <message>
        <source>Scanned %1</source>
        <translation>スキャン: %1</translation>
    </message>
    <message>
        <source>Not in Clean All.</source>
        <translation>「すべてクリーン」には含まれません。</translation>
    </message>
    <message>
        <source>not in Clean All</source>
        <translation>「すべてクリーン」対象外</translation>
    </message>
</context>
<context>
    <name>CacheDetailDrawer</name>
    <message>
        <source>%1 reclaimable</source>
        <translation>%1 回収可能</translation>
    </message>
    <message>
        <source>Will run: %1</source>
        <translation>実行するコマンド: %1</translation>
    </message>
    <message>
        <source>Breakdown</source>
        <translation>内訳</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>ゴミ箱に移動</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>何も見つかりませんでした。</translation>
    </message>
    <message>
        <source>Rescan to see what it consists of.</source>
        <translation>内訳を見るには再スキャンしてください。</translation>
    </message>
    <message>
        <source>Clean %1</source>
        <translation>%1 をクリーン</translation>
    </message>
</context>
<context>
    <name>CacheScanner</name>
    <message>
        <source>%1 cannot be cleaned: %2.</source>
        <translation>%1 をクリーンできません: %2。</translation>
    </message>
    <message>
        <source>The tool calls %1 of it reclaimable.</source>
        <translation>ツールによると、そのうち %1 を回収できます。</translation>
    </message>
</context>
<context>
    <name>CachesCard</name>
    <message>
        <source>Caches</source>
        <translation>キャッシュ</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Clean All</source>
        <translation>すべてクリーン</translation>
    </message>
    <message>
        <source>Stop cleaning</source>
        <translation>クリーンアップを停止</translation>
    </message>
    <message>
        <source>Stopping %1 (%2 of %3)</source>
        <translation>%1 を停止中 (%2/%3)</translation>
    </message>
    <message>
        <source>Cleaning %1 (%2 of %3)</source>
        <translation>%1 をクリーン中 (%2/%3)</translation>
    </message>
    <message>
        <source>%1 reclaimable across %2 targets</source>
        <translation>%1 回収可能（対象 %2 件）</translation>
    </message>
    <message>
        <source>Measuring %1 (%2 of %3)</source>
        <translation>%1 を計測中（%2/%3）</translation>
    </message>
    <message>
        <source>Nothing is measured yet. “Rescan” in the section Cleanup does that.</source>
        <translation>まだ何も計測されていません。「クリーンアップ」の「再スキャン」で計測します。</translation>
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
        <translation>解放量 ≤ %1</translation>
    </message>
    <message>
        <source>frees ≈ %1</source>
        <translation>解放量 ≈ %1</translation>
    </message>
    <message>
        <source>%1, %2, %3, idle %4, %5</source>
        <translation>%1、%2、%3、アイドル %4、%5</translation>
    </message>
</context>
<context>
    <name>Cleaner</name>
    <message>
        <source>stopped</source>
        <translation>停止しました</translation>
    </message>
    <message>
        <source>there is no trash</source>
        <translation>ゴミ箱がありません</translation>
    </message>
    <message>
        <source>its name is no text</source>
        <translation>名前がテキストではありません</translation>
    </message>
    <message>
        <source>%1 was not moved to the trash: %2</source>
        <translation>%1 をゴミ箱に移動できませんでした: %2</translation>
    </message>
    <message>
        <source>only old files can be moved</source>
        <translation>移動できるのは古いファイルだけです</translation>
    </message>
    <message>
        <source>it could not be listed</source>
        <translation>一覧にできませんでした</translation>
    </message>
</context>
<context>
    <name>CleanupChoice</name>
    <message>
        <source>No volumes go</source>
        <translation>削除されるボリュームはありません</translation>
    </message>
    <message>
        <source>Volumes that go, with all that is in them: %1</source>
        <translation>内容ごと削除されるボリューム: %1</translation>
    </message>
</context>
<context>
    <name>CleanupConfirmation</name>
    <message>
        <source>Delete %1?</source>
        <translation>%1 を削除しますか？</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>%1 を削除</translation>
    </message>
    <message>
        <source>Clean all reclaimable caches?</source>
        <translation>回収できるキャッシュをすべてクリーンしますか？</translation>
    </message>
    <message>
        <source>Clean %1</source>
        <translation>%1 をクリーン</translation>
    </message>
</context>
<context>
    <name>CleanupPreview</name>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Tick all that is shown</source>
        <translation>表示中のものをすべて選択</translation>
    </message>
    <message>
        <source>Leave out all that is shown</source>
        <translation>表示中のものをすべて除外</translation>
    </message>
    <message>
        <source>Could not look into %1: %2</source>
        <translation>%1 の中を確認できませんでした: %2</translation>
    </message>
    <message>
        <source>%1 will come back</source>
        <translation>%1 が空きます</translation>
    </message>
    <message numerus="yes">
        <source> • %n left out</source>
        <translation>
            <numerusform> • %n 件を除外</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CleanupPreviewModel</name>
    <message>
        <source>changed %1</source>
        <translation>変更: %1</translation>
    </message>
    <message>
        <source>in use</source>
        <translation>使用中</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>変更日時</translation>
    </message>
</context>
<context>
    <name>CleanupPreviewView</name>
    <message>
        <source>What goes</source>
        <translation>削除されるもの</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>除外</translation>
    </message>
    <message>
        <source>Include</source>
        <translation>含める</translation>
    </message>
    <message>
        <source>Reveal</source>
        <translation>フォルダーに表示</translation>
    </message>
    <message>
        <source>Could not open %1.</source>
        <translation>%1 を開けませんでした。</translation>
    </message>
    <message>
        <source>Nothing here has the text of the search. What is ticked stays so.</source>
        <translation>検索の文字列を含むものはありません。チェックはそのままです。</translation>
    </message>
</context>
<context>
    <name>CleanupTab</name>
    <message>
        <source>Cleanup</source>
        <translation>クリーンアップ</translation>
    </message>
    <message>
        <source>Questions</source>
        <translation>確認</translation>
    </message>
    <message>
        <source>Ask before cleaning everything</source>
        <translation>すべてクリーンする前に確認</translation>
    </message>
    <message>
        <source>When off, “Clean All” in Optimize starts at once.</source>
        <translation>オフにすると、「最適化」の「すべてクリーン」がすぐに始まります。</translation>
    </message>
    <message>
        <source>Never clean</source>
        <translation>クリーンしないもの</translation>
    </message>
    <message>
        <source>Nothing is excluded.</source>
        <translation>除外されているものはありません。</translation>
    </message>
    <message>
        <source>Path or pattern, such as *.gguf</source>
        <translation>パスまたはパターン（例: *.gguf）</translation>
    </message>
    <message>
        <source>Neither counted nor removed. A path keeps all below it.</source>
        <translation>集計も削除もしません。パスを指定すると、その中身もすべて残ります。</translation>
    </message>
    <message>
        <source>Project folders</source>
        <translation>プロジェクトフォルダー</translation>
    </message>
    <message>
        <source>Your home folder</source>
        <translation>ホームフォルダー</translation>
    </message>
    <message>
        <source>Where “Project leftovers” looks for projects. Hidden folders and other disks are left out.</source>
        <translation>「プロジェクトの残り」がプロジェクトを探す場所です。隠しフォルダーとほかのディスクは除きます。</translation>
    </message>
</context>
<context>
    <name>CleanupTexts</name>
    <message>
        <source>“%1”</source>
        <comment>a name</comment>
        <translation>「%1」</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>ほか %1 件</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1、%2</translation>
    </message>
    <message numerus="yes">
        <source>%n volume(s), %1</source>
        <translation>
            <numerusform>%n 個のボリューム、%1</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Gone for good: %1</source>
        <translation>完全に削除: %1</translation>
    </message>
    <message>
        <source>Gone for good</source>
        <translation>完全に削除</translation>
    </message>
    <message>
        <source>Runs %1</source>
        <translation>%1 を実行</translation>
    </message>
    <message>
        <source>These are files of yours, no caches. They will be gone for good.</source>
        <translation>キャッシュではなく、あなたのファイルです。完全に削除されます。</translation>
    </message>
    <message>
        <source>These files of yours will be gone for good: %1.</source>
        <translation>次のあなたのファイルが完全に削除されます: %1。</translation>
    </message>
    <message>
        <source>Gone for good, with all that is in them: %1.</source>
        <translation>内容ごと完全に削除されます: %1。</translation>
    </message>
    <message>
        <source>Stopped containers go too. Images and build caches are fetched or built again as needed.</source>
        <translation>停止中のコンテナーも削除されます。イメージとビルドキャッシュは、必要に応じて再取得または再ビルドされます。</translation>
    </message>
    <message>
        <source>Deleting cache files. Apps will rebuild caches as needed.</source>
        <translation>キャッシュファイルを削除します。アプリは必要に応じてキャッシュを作り直します。</translation>
    </message>
    <message>
        <source>What goes: %1.</source>
        <translation>削除されるもの: %1。</translation>
    </message>
    <message>
        <source>No volumes go.</source>
        <translation>削除されるボリュームはありません。</translation>
    </message>
    <message>
        <source>Runs every cleanup with a size estimate above 0.</source>
        <translation>推定サイズが 0 を超えるクリーンアップをすべて実行します。</translation>
    </message>
    <message>
        <source>Apps will rebuild caches as needed.</source>
        <translation>アプリは必要に応じてキャッシュを作り直します。</translation>
    </message>
    <message>
        <source>Not so with what is yours. It will be gone for good: %1.</source>
        <translation>あなた自身のデータは別です。完全に削除されます: %1。</translation>
    </message>
    <message>
        <source>Some of them overlap; the total counts what they share once.</source>
        <translation>一部は重複しています。共通部分は合計で一度だけ数えます。</translation>
    </message>
    <message>
        <source>Stopped: cleaned %1 of %2 targets, freed ~%3</source>
        <translation>停止: %1/%2 件をクリーン、約 %3 を解放</translation>
    </message>
    <message>
        <source>Cleaned %1 targets, freed ~%2</source>
        <translation>%1 件をクリーン、約 %2 を解放</translation>
    </message>
    <message>
        <source>%1 came back on the disk</source>
        <translation>ディスクに %1 の空きが戻りました</translation>
    </message>
    <message>
        <source>Not finished: %1</source>
        <translation>未完了: %1</translation>
    </message>
    <message>
        <source>It is unknown which volumes go, with all that is in them.</source>
        <translation>どのボリュームが中身ごと消えるかは不明です。</translation>
    </message>
    <message>
        <source>unknown volumes</source>
        <translation>不明なボリューム</translation>
    </message>
</context>
<context>
    <name>CleanupView</name>
    <message>
        <source>Show all</source>
        <translation>すべて表示</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>再スキャン</translation>
    </message>
    <message>
        <source>Clean All</source>
        <translation>すべてクリーン</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <translation>クリーンアップ</translation>
    </message>
    <message>
        <source>Also what this computer has nothing of</source>
        <translation>このコンピューターにないものも表示</translation>
    </message>
    <message>
        <source>Cleanup targets</source>
        <translation>クリーンアップの対象</translation>
    </message>
    <message>
        <source>Stop cleaning</source>
        <translation>クリーンアップを停止</translation>
    </message>
    <message>
        <source>Reclaimable: %1</source>
        <translation>回収可能: %1</translation>
    </message>
    <message>
        <source>Build folders of your projects, which their tools make again.</source>
        <translation>プロジェクトのビルドフォルダー。ツールが作り直します。</translation>
    </message>
    <message>
        <source>Stopping %1 (%2 of %3)</source>
        <translation>%1 を停止中 (%2/%3)</translation>
    </message>
    <message>
        <source>Cleaning %1 (%2 of %3)</source>
        <translation>%1 をクリーン中 (%2/%3)</translation>
    </message>
    <message>
        <source>Measuring %1 (%2 of %3)</source>
        <translation>%1 を計測中 (%2/%3)</translation>
    </message>
    <message>
        <source>nothing is measured yet: “Rescan” does that</source>
        <translation>まだ計測されていません：「再スキャン」で計測します</translation>
    </message>
    <message>
        <source>Stop measuring</source>
        <translation>計測を停止</translation>
    </message>
</context>
<context>
    <name>Columns</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>PID</source>
        <translation>PID</translation>
    </message>
    <message>
        <source>CPU%</source>
        <translation>CPU%</translation>
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
        <translation>固有</translation>
    </message>
    <message>
        <source>Memory that no other process shares</source>
        <translation>ほかのプロセスと共有していないメモリ</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>スワップ</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>スレッド</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>アイドル</translation>
    </message>
    <message>
        <source>Procs</source>
        <translation>数</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Freed</source>
        <translation>解放</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>シンボル</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>パターン</translation>
    </message>
    <message>
        <source>Idle≥</source>
        <translation>アイドル≥</translation>
    </message>
    <message>
        <source>RAM≥</source>
        <translation>RAM≥</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>強制</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/秒</translation>
    </message>
    <message>
        <source>Disk read</source>
        <translation>ディスク読み取り</translation>
    </message>
    <message>
        <source>Read from disks a second, of your own processes</source>
        <translation>1 秒間にディスクから読み取った量（自分のプロセスのみ）</translation>
    </message>
    <message>
        <source>Disk write</source>
        <translation>ディスク書き込み</translation>
    </message>
    <message>
        <source>Written to disks a second, of your own processes</source>
        <translation>1 秒間にディスクへ書き込んだ量（自分のプロセスのみ）</translation>
    </message>
    <message>
        <source>User</source>
        <translation>ユーザー</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Parent</source>
        <translation>親</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>セッション</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
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
        <translation>すべてのコア</translation>
    </message>
    <message>
        <source>Core %1</source>
        <translation>コア %1</translation>
    </message>
</context>
<context>
    <name>DetailPage</name>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>since %1, while this page is open</source>
        <translation>%1 から、このページを開いている間</translation>
    </message>
</context>
<context>
    <name>DiskPage</name>
    <message>
        <source>%1 free of %2</source>
        <translation>空き %1 / %2</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>ディスク</translation>
    </message>
    <message>
        <source>%1 read</source>
        <translation>読み取り %1</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>書き込み %1</translation>
    </message>
    <message>
        <source>No figures of reading and writing</source>
        <translation>読み書きの値がありません</translation>
    </message>
    <message>
        <source>This computer shows programs no disk of its own, as many containers. What single processes read and write is in columns of the Processes section.</source>
        <translation>多くのコンテナーと同様に、このコンピューターは自身のディスクをプログラムに見せません。各プロセスの読み書きは「プロセス」の列にあります。</translation>
    </message>
    <message>
        <source>Being read…</source>
        <translation>読み取り中…</translation>
    </message>
    <message>
        <source>Read and written</source>
        <translation>読み取りと書き込み</translation>
    </message>
    <message>
        <source>No volume of a disk is mounted here. The tile shows the space of the root folder.</source>
        <translation>ここにはディスクのボリュームがマウントされていません。タイルはルートフォルダーの容量を示します。</translation>
    </message>
    <message>
        <source>A disk does not answer. It is asked again once it does, while this page is open.</source>
        <translation>応答しないディスクがあります。応答し次第、このページが開いている間に再び問い合わせます。</translation>
    </message>
</context>
<context>
    <name>DismissButton</name>
    <message>
        <source>Dismiss</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>EndDialog</name>
    <message>
        <source>Processes</source>
        <translation>プロセス</translation>
    </message>
    <message numerus="yes">
        <source>%1 %n process(es) run below it.</source>
        <translation>
            <numerusform>%1 その下で %n 個のプロセスが動いています。</numerusform>
        </translation>
    </message>
    <message>
        <source>Force kill %1?</source>
        <translation>%1 を強制終了しますか？</translation>
    </message>
    <message>
        <source>Quit %1?</source>
        <translation>%1 を終了しますか？</translation>
    </message>
    <message numerus="yes">
        <source>Force kill %n process(es)?</source>
        <translation>
            <numerusform>%n 個のプロセスを強制終了しますか？</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Quit %n process(es)?</source>
        <translation>
            <numerusform>%n 個のプロセスを終了しますか？</numerusform>
        </translation>
    </message>
    <message>
        <source>They hold %1. They end at once, and what is not saved is lost.</source>
        <translation>%1 を使用しています。ただちに終了し、保存していない内容は失われます。</translation>
    </message>
    <message>
        <source>They hold %1. They are asked to end, and may lose what is not saved.</source>
        <translation>%1 を使用しています。終了を求めます。保存していない内容は失われることがあります。</translation>
    </message>
    <message>
        <source>PID %1 holds %2. It ends at once, and what is not saved is lost.</source>
        <translation>PID %1 は %2 を使用しています。ただちに終了し、保存していない内容は失われます。</translation>
    </message>
    <message>
        <source>PID %1 holds %2. It is asked to end, and may lose what is not saved.</source>
        <translation>PID %1 は %2 を使用しています。終了を求めます。保存していない内容は失われることがあります。</translation>
    </message>
    <message>
        <source>Force kill</source>
        <translation>強制終了</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Force kill %1</source>
        <translation>%1 を強制終了</translation>
    </message>
    <message>
        <source>Quit %1</source>
        <translation>%1 を終了</translation>
    </message>
</context>
<context>
    <name>Formatters</name>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 TB</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <translation>%1 PB</translation>
    </message>
    <message>
        <source>%1 EB</source>
        <translation>%1 EB</translation>
    </message>
    <message>
        <source>%1s</source>
        <comment>seconds</comment>
        <translation>%1秒</translation>
    </message>
    <message>
        <source>%1m</source>
        <comment>minutes</comment>
        <translation>%1分</translation>
    </message>
    <message>
        <source>%1h</source>
        <comment>hours</comment>
        <translation>%1時間</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n バイト</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n year(s) ago</source>
        <translation>
            <numerusform>%n 年前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n month(s) ago</source>
        <translation>
            <numerusform>%n か月前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n week(s) ago</source>
        <translation>
            <numerusform>%n 週間前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n day(s) ago</source>
        <translation>
            <numerusform>%n 日前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s) ago</source>
        <translation>
            <numerusform>%n 時間前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s) ago</source>
        <translation>
            <numerusform>%n 分前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n second(s) ago</source>
        <translation>
            <numerusform>%n 秒前</numerusform>
        </translation>
    </message>
    <message>
        <source>just now</source>
        <translation>たった今</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the items of a list</comment>
        <translation>、</translation>
    </message>
    <message>
        <source>%1.</source>
        <comment>a sentence</comment>
        <translation>%1。</translation>
    </message>
</context>
<context>
    <name>FreeRAMResultView</name>
    <message>
        <source>• memory_pressure nudged</source>
        <translation>• memory_pressure を送信</translation>
    </message>
    <message>
        <source>Freed ~%1</source>
        <translation>約 %1 を解放</translation>
    </message>
    <message>
        <source>• stopped</source>
        <translation>• 停止しました</translation>
    </message>
</context>
<context>
    <name>FreeRAMSheet</name>
    <message>
        <source>Min idle: %1 min</source>
        <translation>最小アイドル時間: %1 分</translation>
    </message>
    <message>
        <source>Min RAM: %1 MB</source>
        <translation>最小 RAM: %1 MB</translation>
    </message>
    <message>
        <source>Other programs too</source>
        <translation>ほかのプログラムも</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>選択解除</translation>
    </message>
    <message>
        <source>Free RAM</source>
        <translation>RAM を解放</translation>
    </message>
    <message>
        <source>Tick the processes you want to terminate. SIGTERM is sent first; anything still running after 2 s gets SIGKILL. %1 is then nudged with a memory-pressure hint to compress inactive pages.</source>
        <translation>終了するプロセスを選択してください。まず SIGTERM を送り、2 秒後も動いているものには SIGKILL を送ります。その後メモリ圧迫を送り、%1 に非アクティブなページの圧縮を促します。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Lists programs of no known group under a gigabyte as well</source>
        <translation>既知のグループに属さない 1 GB 未満のプログラムも表示します</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>プロセス</translation>
    </message>
    <message>
        <source>No idle hogs above your thresholds</source>
        <translation>しきい値を超えるアイドルの大食いはありません</translation>
    </message>
    <message>
        <source>Lower the Min idle slider to see lightly-used processes.</source>
        <translation>「最小アイドル時間」を下げると、あまり使われていないプロセスが表示されます。</translation>
    </message>
    <message>
        <source>%1 selected • %2 targeted</source>
        <translation>%1 個選択 • 対象 %2</translation>
    </message>
    <message>
        <source>Killing…</source>
        <translation>終了中…</translation>
    </message>
    <message>
        <source>Kill %1 and free RAM</source>
        <translation>%1 個を終了して RAM を解放</translation>
    </message>
    <message>
        <source>Send memory pressure only</source>
        <translation>メモリ圧迫のみ送信</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Kills nothing more; what still runs is left alone</source>
        <translation>これ以上は強制終了しません。まだ動いているものはそのままです</translation>
    </message>
</context>
<context>
    <name>FreedesktopLoginItem</name>
    <message>
        <source>The program&apos;s own file cannot be found.</source>
        <translation>プログラム自身のファイルが見つかりません。</translation>
    </message>
</context>
<context>
    <name>FreedesktopPlaces</name>
    <message>
        <source>%1 is left alone: a whole file system is mounted there.</source>
        <translation>%1 はそのまま残します: ファイルシステム全体がマウントされています。</translation>
    </message>
    <message>
        <source>%1 is left alone: it is a link.</source>
        <translation>%1 はそのまま残します: リンクです。</translation>
    </message>
    <message>
        <source>%1 is left alone: it holds more than that, in %2.</source>
        <translation>%1 はそのまま残します: %2 にほかのものも含まれています。</translation>
    </message>
    <message>
        <source>%1 is left alone: all programs share it.</source>
        <translation>%1 はそのまま残します: すべてのプログラムが共有しています。</translation>
    </message>
    <message>
        <source>%1 is left alone: the folder of caches must have nothing to do with %2.</source>
        <translation>%1 はそのまま残します: キャッシュのフォルダーは %2 と無関係でなければなりません。</translation>
    </message>
</context>
<context>
    <name>FreedesktopTargets</name>
    <message>
        <source>Gradle fetches its packages and its own versions again.</source>
        <translation>Gradle はパッケージと Gradle 自身の各版を再取得します。</translation>
    </message>
    <message>
        <source>Old logs of Gradle&apos;s background processes. Gradle writes new ones.</source>
        <translation>Gradle のバックグラウンドプロセスの古いログ。Gradle は新しいログを書きます。</translation>
    </message>
    <message>
        <source>Maven fetches packages again. Those that were only installed here must be built again.</source>
        <translation>Maven はパッケージを再取得します。ここにだけインストールしたものは再ビルドが必要です。</translation>
    </message>
    <message>
        <source>Both fetch their packages again.</source>
        <translation>どちらもパッケージを再取得します。</translation>
    </message>
    <message>
        <source>Cargo unpacks sources again, and fetches repositories again.</source>
        <translation>Cargo はソースを再展開し、リポジトリを再取得します。</translation>
    </message>
    <message>
        <source>Go compiles packages again.</source>
        <translation>Go はパッケージを再コンパイルします。</translation>
    </message>
    <message>
        <source>Toolchains that are not the default. A project may still name one: rustup fetches it again, but not one of your own.</source>
        <translation>既定以外のツールチェーン。プロジェクトが指定している場合は rustup が再取得しますが、自作のものは戻りません。</translation>
    </message>
    <message>
        <source>Yarn and Corepack fetch it again.</source>
        <translation>Yarn と Corepack が再取得します。</translation>
    </message>
    <message>
        <source>Conda fetches packages again. Environments keep theirs, unless they are set to link to this folder.</source>
        <translation>Conda はパッケージを再取得します。環境は、このフォルダーへのリンク設定でない限り、自分のパッケージを保持します。</translation>
    </message>
    <message>
        <source>Poetry fetches its packages again. Environments stay.</source>
        <translation>Poetry はパッケージを再取得します。環境は残ります。</translation>
    </message>
    <message>
        <source>pre-commit installs its hooks again.</source>
        <translation>pre-commit はフックを再インストールします。</translation>
    </message>
    <message>
        <source>Compiled objects. The next builds take longer and fill it again.</source>
        <translation>コンパイル済みオブジェクト。次のビルドは長くかかり、再びたまります。</translation>
    </message>
    <message>
        <source>Files that Bazel has fetched. It fetches them again.</source>
        <translation>Bazel が取得したファイル。Bazel が再取得します。</translation>
    </message>
    <message>
        <source>Conan fetches or builds packages again. Recipes that are only here are gone.</source>
        <translation>Conan はパッケージを再取得または再ビルドします。ここにしかないレシピは失われます。</translation>
    </message>
    <message>
        <source>vcpkg builds its packages again.</source>
        <translation>vcpkg はパッケージを再ビルドします。</translation>
    </message>
    <message>
        <source>Editors make them again. Settings, open work and history stay.</source>
        <translation>エディターが作り直します。設定、作業中のもの、履歴は残ります。</translation>
    </message>
    <message>
        <source>Earlier states of your files. Nothing brings them back.</source>
        <translation>ファイルの以前の状態。元には戻せません。</translation>
    </message>
    <message>
        <source>Logs of coding agents that no agent reads again. Conversations stay.</source>
        <translation>もうどのエージェントも読まないコーディングエージェントのログ。会話は残ります。</translation>
    </message>
    <message>
        <source>Settings of shells for agents that ended long ago. An agent makes its own at its start.</source>
        <translation>とうに終了したエージェントのシェル設定。エージェントは起動時に自分の設定を作ります。</translation>
    </message>
    <message>
        <source>Long texts that you pasted. Old prompts in the history refer to them.</source>
        <translation>貼り付けた長いテキスト。履歴の古いプロンプトが参照しています。</translation>
    </message>
    <message>
        <source>Models and data sets. What is public can be fetched again.</source>
        <translation>モデルとデータセット。公開されているものは再取得できます。</translation>
    </message>
    <message>
        <source>Parts of models, named after them. Those that you made here are gone for good.</source>
        <translation>モデルの一部（モデル名で表示）。ここで作ったものは完全に失われます。</translation>
    </message>
    <message>
        <source>Models. What is public can be fetched again.</source>
        <translation>モデル。公開されているものは再取得できます。</translation>
    </message>
    <message>
        <source>Applications make their caches again.</source>
        <translation>アプリはキャッシュを作り直します。</translation>
    </message>
    <message>
        <source>Small pictures of your files. File managers make them again.</source>
        <translation>ファイルの小さな画像。ファイルマネージャーが作り直します。</translation>
    </message>
    <message>
        <source>The graphics driver compiles shaders again. Games may stutter at first.</source>
        <translation>グラフィックドライバーがシェーダーを再コンパイルします。ゲームは最初カクつくことがあります。</translation>
    </message>
    <message>
        <source>Reports of crashes that are a week old. They only help to find the fault.</source>
        <translation>1 週間前のクラッシュレポート。不具合を調べるためだけのものです。</translation>
    </message>
    <message>
        <source>Podman fetches or builds images again. Stopped containers go.</source>
        <translation>Podman はイメージを再取得または再ビルドします。停止中のコンテナーは削除されます。</translation>
    </message>
    <message>
        <source>They are installed already. The system asks for a password.</source>
        <translation>すでにインストール済みです。システムがパスワードを求めます。</translation>
    </message>
    <message>
        <source>Old messages of the system go, the newest stay. It asks for a password.</source>
        <translation>システムの古いメッセージを削除し、最新のものを残します。パスワードを求められます。</translation>
    </message>
</context>
<context>
    <name>GeneralTab</name>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>起動</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>ログイン時に起動</translation>
    </message>
    <message>
        <source>Show floating widget on launch</source>
        <translation>起動時にフローティングウィジェットを表示</translation>
    </message>
    <message>
        <source>Show in %1</source>
        <translation>%1に表示</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Texts, numbers and dates</source>
        <translation>テキスト、数値、日付</translation>
    </message>
    <message>
        <source>Takes effect at the next start.</source>
        <translation>次回の起動時に反映されます。</translation>
    </message>
    <message>
        <source>Couldn&apos;t register: %1</source>
        <translation>登録できませんでした: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t unregister: %1</source>
        <translation>登録を解除できませんでした: %1</translation>
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
        <translation>線は次の値から始まります。</translation>
    </message>
</context>
<context>
    <name>GroupHeader</name>
    <message>
        <source>%1 (%2), %3, %4 CPU</source>
        <translation>%1 (%2)、%3、CPU %4</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>展開</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>折りたたみ</translation>
    </message>
    <message>
        <source>• %1 CPU</source>
        <translation>• CPU %1</translation>
    </message>
</context>
<context>
    <name>GroupRow</name>
    <message>
        <source>… +%1 more in Processes tab</source>
        <translation>… ほか %1 件は「プロセス」に表示</translation>
    </message>
</context>
<context>
    <name>HistoryTab</name>
    <message>
        <source>Action history</source>
        <translation>操作履歴</translation>
    </message>
    <message>
        <source>No actions logged yet.</source>
        <translation>まだ操作の記録がありません。</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Force kill</source>
        <translation>強制終了</translation>
    </message>
    <message>
        <source>Clean</source>
        <translation>クリーン</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>CSV を書き出す…</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>ログを消去</translation>
    </message>
    <message>
        <source>Export CSV</source>
        <translation>CSV を書き出す</translation>
    </message>
    <message>
        <source>Comma-separated text (*.csv)</source>
        <translation>コンマ区切りテキスト (*.csv)</translation>
    </message>
    <message>
        <source>Clear action history?</source>
        <translation>操作履歴を消去しますか？</translation>
    </message>
    <message>
        <source>This deletes ~/Library/Logs/Tavrin/actions.log.</source>
        <translation>~/Library/Logs/Tavrin/actions.log を削除します。</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>すべて消去</translation>
    </message>
    <message>
        <source>That file is the log itself.</source>
        <translation>そのファイルはログ自体です。</translation>
    </message>
    <message>
        <source>The log was not exported. Choose another place.</source>
        <translation>ログを書き出せませんでした。別の場所を選んでください。</translation>
    </message>
    <message>
        <source>Show all kinds</source>
        <translation>すべての種類を表示</translation>
    </message>
</context>
<context>
    <name>HistoryTableModel</name>
    <message>
        <source>OK</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
</context>
<context>
    <name>IncidentDialog</name>
    <message>
        <source>%1 more than at first</source>
        <translation>最初より %1 増加</translation>
    </message>
    <message>
        <source>%1 less than at first</source>
        <translation>最初より %1 減少</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>From %1 to %2</source>
        <translation>%1 から %2 まで</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>メモリ</translation>
    </message>
    <message>
        <source>Waited for memory</source>
        <translation>メモリ待ち</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Largest processes then</source>
        <translation>そのときの最大のプロセス</translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>Listens on %1</source>
        <translation>%1 で待ち受け中</translation>
    </message>
    <message>
        <source>Program of the group %1</source>
        <translation>グループ「%1」のプログラム</translation>
    </message>
    <message>
        <source>Program of no known group</source>
        <translation>既知のグループに属さないプログラム</translation>
    </message>
    <message>
        <source>%1, %2 ago</source>
        <comment>a point in time, and how long ago</comment>
        <translation>%1、%2前</translation>
    </message>
    <message>
        <source>MCP server %1 for %2</source>
        <translation>%2 の MCP サーバー %1</translation>
    </message>
    <message>
        <source>MCP server %1, which nobody uses any more</source>
        <translation>もう使われていない MCP サーバー %1</translation>
    </message>
    <message>
        <source>Coding agent %1</source>
        <translation>コーディングエージェント %1</translation>
    </message>
    <message>
        <source>MCP server for %1</source>
        <translation>%1 の MCP サーバー</translation>
    </message>
    <message>
        <source>Dev server of %1</source>
        <translation>%1 の開発サーバー</translation>
    </message>
    <message>
        <source>Dev server on %1 of %2</source>
        <translation>%2 の開発サーバー（%1）</translation>
    </message>
    <message>
        <source>Browser of %1</source>
        <translation>%1 のブラウザ</translation>
    </message>
    <message>
        <source>Command of %1</source>
        <translation>%1 のコマンド</translation>
    </message>
    <message>
        <source>Renderer of %1: a page or an extension</source>
        <translation>%1 のレンダラー: ページまたは拡張機能</translation>
    </message>
    <message>
        <source>Graphics process of %1</source>
        <translation>%1 のグラフィックスプロセス</translation>
    </message>
    <message>
        <source>Service process of %1</source>
        <translation>%1 のサービスプロセス</translation>
    </message>
    <message>
        <source>Process that %1 starts others from</source>
        <translation>%1 が他のプロセスを起動する元のプロセス</translation>
    </message>
    <message>
        <source>Content process of %1: pages or extensions</source>
        <translation>%1 のコンテンツプロセス: ページまたは拡張機能</translation>
    </message>
</context>
<context>
    <name>InspectorPanel</name>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Force kill</source>
        <translation>強制終了</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>メモリ</translation>
    </message>
    <message>
        <source>Show files</source>
        <translation>ファイルを表示</translation>
    </message>
    <message>
        <source>Show environment</source>
        <translation>環境変数を表示</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Where it is from</source>
        <translation>由来</translation>
    </message>
    <message>
        <source>PID</source>
        <translation>PID</translation>
    </message>
    <message>
        <source>User</source>
        <translation>ユーザー</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>スレッド</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>セッション</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Control group</source>
        <translation>コントロールグループ</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copy the command</source>
        <translation>コマンドをコピー</translation>
    </message>
    <message>
        <source>Started from</source>
        <translation>起動元</translation>
    </message>
    <message>
        <source>Its parents are not listed.</source>
        <translation>親プロセスは一覧にありません。</translation>
    </message>
    <message>
        <source>Close the details</source>
        <translation>詳細を閉じる</translation>
    </message>
    <message>
        <source>Choose a process in the table.</source>
        <translation>表からプロセスを選んでください。</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Environment</source>
        <translation>環境変数</translation>
    </message>
    <message>
        <source>It has ended.</source>
        <translation>終了しました。</translation>
    </message>
    <message>
        <source>Quit %1</source>
        <translation>%1 を終了</translation>
    </message>
    <message>
        <source>Force kill %1</source>
        <translation>%1 を強制終了</translation>
    </message>
    <message numerus="yes">
        <source>%n open file(s)</source>
        <translation>
            <numerusform>開いているファイル %n 個</numerusform>
        </translation>
    </message>
    <message>
        <source>listens on %1</source>
        <translation>%1 で待ち受け</translation>
    </message>
    <message>
        <source>Unknown: the system tells it only of your own processes.</source>
        <translation>不明: システムは自分のプロセスについてだけ教えます。</translation>
    </message>
    <message>
        <source>Being read…</source>
        <translation>読み取り中…</translation>
    </message>
    <message>
        <source>Open files</source>
        <translation>開いているファイル</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>最初の %1 個を表示しています。</translation>
    </message>
    <message>
        <source>The system refuses it</source>
        <translation>システムが拒否しました</translation>
    </message>
    <message>
        <source>hidden, as it may be a secret</source>
        <translation>秘密の可能性があるため非表示</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>空です。</translation>
    </message>
    <message>
        <source>Unknown: it has ended.</source>
        <translation>不明：終了しました。</translation>
    </message>
</context>
<context>
    <name>LeaveOutOffer</name>
    <message>
        <source>and %1 more</source>
        <translation>ほか %1 件</translation>
    </message>
    <message>
        <source>You left this out twice. The Cleanup settings have the list.</source>
        <translation>これを 2 回除外しました。一覧はクリーンアップの設定にあります。</translation>
    </message>
    <message>
        <source>Never clean this?</source>
        <translation>今後クリーンしませんか？</translation>
    </message>
    <message>
        <source>Never Clean</source>
        <translation>今後クリーンしない</translation>
    </message>
</context>
<context>
    <name>LeftoverTexts</name>
    <message>
        <source>unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>in use by %1</source>
        <translation>%1 が使用中</translation>
    </message>
    <message>
        <source>uncommitted changes</source>
        <translation>未コミットの変更</translation>
    </message>
    <message numerus="yes">
        <source>Stopped: removed %n folder(s), freed ~%1</source>
        <translation>
            <numerusform>停止しました: %n 個のフォルダーを削除、約 %1 を解放</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Removed %n folder(s), freed ~%1</source>
        <translation>
            <numerusform>%n 個のフォルダーを削除、約 %1 を解放</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n project(s) found</source>
        <translation>
            <numerusform>%n 件のプロジェクトが見つかりました</numerusform>
        </translation>
    </message>
    <message>
        <source>Looking in %1</source>
        <translation>%1 を検索中</translation>
    </message>
    <message>
        <source>Removing %1</source>
        <translation>%1 を削除中</translation>
    </message>
</context>
<context>
    <name>MCPCard</name>
    <message>
        <source>Claude Code &amp; MCP</source>
        <translation>Claude Code と MCP</translation>
    </message>
    <message>
        <source>Loaded servers + orphan detection</source>
        <translation>読み込み済みサーバーと孤立の検出</translation>
    </message>
    <message>
        <source>Configured</source>
        <translation>設定済み</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>実行中</translation>
    </message>
    <message>
        <source>Orphans</source>
        <translation>孤立</translation>
    </message>
    <message>
        <source>Orphan RAM</source>
        <translation>孤立 RAM</translation>
    </message>
    <message>
        <source>Kill orphans</source>
        <translation>孤立を終了</translation>
    </message>
    <message>
        <source>Running servers</source>
        <translation>実行中のサーバー</translation>
    </message>
    <message>
        <source>No ~/.claude/mcp.json found — nothing configured globally.</source>
        <translation>~/.claude/mcp.json が見つかりません — グローバルな設定はありません。</translation>
    </message>
    <message>
        <source>A configuration file is being read. Its servers are counted after that.</source>
        <translation>設定ファイルを読み取り中です。その後でサーバーを数えます。</translation>
    </message>
</context>
<context>
    <name>MCPInspector</name>
    <message>
        <source>(%1 or gone)</source>
        <translation>(%1 または終了済み)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Close Window</source>
        <translation>ウィンドウを閉じる</translation>
    </message>
    <message>
        <source>Show or Hide Sidebar</source>
        <translation>サイドバーの表示・非表示</translation>
    </message>
</context>
<context>
    <name>MemoryCard</name>
    <message>
        <source>Memory</source>
        <translation>メモリ</translation>
    </message>
    <message>
        <source>Free RAM without quitting your work</source>
        <translation>作業を終了せずに RAM を解放</translation>
    </message>
    <message>
        <source>Pressure nudge</source>
        <translation>メモリ圧迫</translation>
    </message>
    <message>
        <source>Free RAM</source>
        <translation>RAM を解放</translation>
    </message>
    <message>
        <source>Pressure: free + compress. Deep purge prompts admin and flushes the unified buffer cache (heavier).</source>
        <translation>圧迫: 解放と圧縮。ディープパージは管理者権限を求め、バッファキャッシュ全体を消去します（負荷が大きい）。</translation>
    </message>
    <message>
        <source>Purging…</source>
        <translation>パージ中…</translation>
    </message>
    <message>
        <source>Deep purge (admin)</source>
        <translation>ディープパージ (管理者)</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Stop purging</source>
        <translation>パージを停止</translation>
    </message>
</context>
<context>
    <name>MemoryKindsBar</name>
    <message>
        <source>Own</source>
        <translation>固有</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>共有</translation>
    </message>
    <message>
        <source>In memory, kinds unknown</source>
        <translation>メモリ内（種類は不明）</translation>
    </message>
    <message>
        <source>In swap</source>
        <translation>スワップ内</translation>
    </message>
</context>
<context>
    <name>MemoryLineUp</name>
    <message>
        <source>Groups %1</source>
        <translation>グループ %1</translation>
    </message>
    <message>
        <source>of these, caches of files −%1</source>
        <translation>うちファイルのキャッシュ −%1</translation>
    </message>
    <message>
        <source>Other users %1</source>
        <translation>ほかのユーザー %1</translation>
    </message>
    <message>
        <source>Kernel %1</source>
        <translation>カーネル %1</translation>
    </message>
    <message>
        <source>Shared memory and the rest %1</source>
        <translation>共有メモリとその他 %1</translation>
    </message>
    <message>
        <source>Used %1</source>
        <translation>使用中 %1</translation>
    </message>
</context>
<context>
    <name>MemoryPage</name>
    <message>
        <source>Memory</source>
        <translation>メモリ</translation>
    </message>
    <message>
        <source>In use</source>
        <translation>使用中</translation>
    </message>
    <message>
        <source>Swap in use</source>
        <translation>使用中のスワップ</translation>
    </message>
    <message>
        <source>Time that programs waited for memory</source>
        <translation>プログラムがメモリを待った時間</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>カーネル</translation>
    </message>
    <message>
        <source>Compressed</source>
        <translation>圧縮済み</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>プログラム</translation>
    </message>
    <message>
        <source>Some programs</source>
        <translation>一部のプログラム</translation>
    </message>
    <message>
        <source>All programs</source>
        <translation>すべてのプログラム</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>File cache</source>
        <translation>ファイルキャッシュ</translation>
    </message>
</context>
<context>
    <name>MenuBarController</name>
    <message>
        <source>CPU %1% • RAM %2%</source>
        <translation>CPU %1% • RAM %2%</translation>
    </message>
    <message>
        <source>CPU %1%</source>
        <translation>CPU %1%</translation>
    </message>
    <message>
        <source>RAM %1%</source>
        <translation>RAM %1%</translation>
    </message>
</context>
<context>
    <name>MenuBarPanel</name>
    <message>
        <source>Top 5 by RAM</source>
        <translation>RAM 上位 5</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Toggle floating widget</source>
        <translation>フローティングウィジェットの表示切り替え</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
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
        <translation>ディスク</translation>
    </message>
    <message>
        <source>Therm</source>
        <translation>温度</translation>
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
        <translation>メモリ</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>ディスク</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>空き %1</translation>
    </message>
    <message>
        <source>Thermal</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Swap %1</source>
        <translation>スワップ %1</translation>
    </message>
    <message>
        <source>No swap</source>
        <translation>スワップなし</translation>
    </message>
    <message>
        <source>%1 • pressure %2</source>
        <comment>used memory; a share of time</comment>
        <translation>%1 • 圧迫 %2</translation>
    </message>
    <message>
        <source>Programs waited %1 of the last ten seconds for memory, all of them %2</source>
        <translation>直近 10 秒のうち、プログラムがメモリを待った時間は %1、全プログラム同時は %2</translation>
    </message>
    <message>
        <source>Programs waited %1 of the last ten seconds for disks, all of them %2</source>
        <translation>直近 10 秒のうち、プログラムがディスクを待った時間は %1、全プログラム同時は %2</translation>
    </message>
</context>
<context>
    <name>NothingFound</name>
    <message>
        <source>Clear the search</source>
        <translation>検索を消去</translation>
    </message>
    <message>
        <source>Show all groups</source>
        <translation>すべてのグループを表示</translation>
    </message>
    <message>
        <source>Show all sizes</source>
        <translation>すべてのサイズを表示</translation>
    </message>
    <message>
        <source>Clear all filters</source>
        <translation>すべてのフィルターを解除</translation>
    </message>
    <message>
        <source>No processes match</source>
        <translation>一致するプロセスがありません</translation>
    </message>
    <message numerus="yes">
        <source>Min RAM of %1 MB hides %n more.</source>
        <translation>
            <numerusform>最小 RAM %1 MB により、ほかに %n 個が非表示です。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The group %1 hides %n more.</source>
        <translation>
            <numerusform>グループ「%1」により、ほかに %n 個が非表示です。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The search hides %n more.</source>
        <translation>
            <numerusform>検索により、ほかに %n 個が非表示です。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The filters together hide %n process(es).</source>
        <translation>
            <numerusform>フィルターの組み合わせで %n 個のプロセスが非表示です。</numerusform>
        </translation>
    </message>
    <message>
        <source>Change the search, the group or Min RAM to see more.</source>
        <translation>検索、グループ、最小 RAM を変えると表示が増えます。</translation>
    </message>
    <message>
        <source>No processes</source>
        <translation>プロセスがありません</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>Dismiss</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>NotificationPlan</name>
    <message numerus="yes">
        <source>%n large session(s)</source>
        <translation>
            <numerusform>%n 件の大きなセッション</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n idle agent(s)</source>
        <translation>
            <numerusform>%n 件のアイドルのエージェント</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>ほか %1 件</translation>
    </message>
</context>
<context>
    <name>NukePreview</name>
    <message>
        <source>Quit “%1” and all %2 helpers?</source>
        <translation>「%1」と %2 個の補助プロセスをすべて終了しますか？</translation>
    </message>
    <message>
        <source>Kill all %1 “%2” processes?</source>
        <translation>%1 個の「%2」プロセスをすべて終了しますか？</translation>
    </message>
    <message>
        <source>Tells %1 to quit cleanly — closes all %2 child processes in one sweep, no per-tab pop-ups. Frees ≈%3.</source>
        <translation>%1 に正常な終了を求めます — %2 個の子プロセスを一度に閉じ、タブごとの確認は出ません。約 %3 を解放します。</translation>
    </message>
    <message>
        <source>Sends SIGTERM to all %1 PIDs. Use sparingly — unsaved work in those processes may be lost.</source>
        <translation>%1 個の PID すべてに SIGTERM を送ります。慎重に使ってください — これらのプロセスの保存していない作業は失われることがあります。</translation>
    </message>
    <message>
        <source>PIDs: %1</source>
        <translation>PID: %1</translation>
    </message>
    <message>
        <source>%1 of its files stay in the cache.</source>
        <translation>そのファイルのうち %1 はキャッシュに残ります。</translation>
    </message>
    <message>
        <source>What runs in its terminals ends too (≈%1): %2.</source>
        <translation>その端末で動いているものも終了します (約 %1): %2。</translation>
    </message>
    <message>
        <source>Quit %1 (≈%2)</source>
        <translation>%1 を終了 (約 %2)</translation>
    </message>
    <message>
        <source>Force-quit %1 (no save prompt)</source>
        <translation>%1 を強制終了 (保存の確認なし)</translation>
    </message>
    <message>
        <source>Kill %1 (≈%2)</source>
        <translation>%1 を終了 (約 %2)</translation>
    </message>
    <message>
        <source>Couldn&apos;t tell %1 to quit (it may not be scriptable). Try the force variant.</source>
        <translation>%1 に終了を伝えられませんでした (スクリプトに対応していない可能性があります)。強制終了を試してください。</translation>
    </message>
    <message>
        <source>%1 quit cleanly — %2 helpers closed (≈%3 freed)</source>
        <translation>%1 は正常に終了しました — %2 個の補助プロセスを終了 (約 %3 を解放)</translation>
    </message>
    <message>
        <source>Killed %1/%2 “%3” processes (≈%4 targeted)</source>
        <translation>「%3」プロセスを %1/%2 個終了しました (対象 約 %4)</translation>
    </message>
</context>
<context>
    <name>NullPlatform</name>
    <message>
        <source>Nothing can be started at login here.</source>
        <translation>ここではログイン時の起動を設定できません。</translation>
    </message>
</context>
<context>
    <name>OptimizeView</name>
    <message>
        <source>Optimize</source>
        <translation>最適化</translation>
    </message>
    <message>
        <source>Sent memory_pressure -l warn</source>
        <translation>memory_pressure -l warn を送信しました</translation>
    </message>
    <message>
        <source>memory_pressure failed</source>
        <translation>memory_pressure が失敗しました</translation>
    </message>
    <message>
        <source>Inactive memory purged</source>
        <translation>非アクティブなメモリをパージしました</translation>
    </message>
    <message>
        <source>Purge cancelled or failed</source>
        <translation>パージは中止されたか失敗しました</translation>
    </message>
    <message>
        <source>Killed %1 orphan MCP server(s)</source>
        <translation>孤立した MCP サーバーを %1 個終了しました</translation>
    </message>
    <message>
        <source>No orphan MCPs to kill</source>
        <translation>終了すべき孤立 MCP はありません</translation>
    </message>
</context>
<context>
    <name>OutcomeList</name>
    <message>
        <source>Left alone: it belongs to something else</source>
        <translation>そのまま: ほかのものに属しています</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了しました</translation>
    </message>
    <message>
        <source>Force-killed</source>
        <translation>強制終了しました</translation>
    </message>
    <message>
        <source>Ignored SIGTERM/KILL</source>
        <translation>SIGTERM/KILL を無視</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>権限がありません</translation>
    </message>
    <message>
        <source>Still running</source>
        <translation>実行中のまま</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>プロセス</translation>
    </message>
</context>
<context>
    <name>OverviewView</name>
    <message>
        <source>Overview</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>Free RAM</source>
        <translation>RAM を解放</translation>
    </message>
    <message>
        <source>Floating Widget</source>
        <translation>フローティングウィジェット</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>ライブ</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>グループ</translation>
    </message>
</context>
<context>
    <name>PlaceFinder</name>
    <message>
        <source>%1 does not answer.</source>
        <translation>%1 が応答しません。</translation>
    </message>
</context>
<context>
    <name>PresetTable</name>
    <message>
        <source>Quick Kill presets</source>
        <translation>クイック終了のプリセット</translation>
    </message>
    <message>
        <source>No presets. Add one, or reset to the defaults.</source>
        <translation>プリセットがありません。追加するか、既定値に戻してください。</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>PresetTableModel</name>
    <message>
        <source>%1m</source>
        <translation>%1分</translation>
    </message>
    <message>
        <source>%1MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>強制</translation>
    </message>
    <message>
        <source>No force</source>
        <translation>強制しない</translation>
    </message>
</context>
<context>
    <name>PresetTile</name>
    <message>
        <source>%1, %2, %3 matching</source>
        <translation>%1、%2、一致 %3 件</translation>
    </message>
</context>
<context>
    <name>ProcessActions</name>
    <message>
        <source>No process of the session could be paused.</source>
        <translation>セッションのプロセスを一時停止できませんでした。</translation>
    </message>
    <message>
        <source>The session has ended meanwhile.</source>
        <translation>セッションはその間に終了しました。</translation>
    </message>
</context>
<context>
    <name>ProcessControls</name>
    <message>
        <source>Search name or path</source>
        <translation>名前またはパスを検索</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>並べ替え</translation>
    </message>
    <message>
        <source>Min RAM %1 MB</source>
        <translation>最小 RAM %1 MB</translation>
    </message>
    <message>
        <source>Group duplicates</source>
        <translation>重複をまとめる</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Tree</source>
        <translation>ツリー</translation>
    </message>
    <message>
        <source>Words of a name, a path or arguments, a PID, or :8080 for who listens on that port</source>
        <translation>名前・パス・引数の単語、PID、または :8080（そのポートで待ち受けるプロセス）</translation>
    </message>
    <message>
        <source>Children below their parents</source>
        <translation>子を親の下に表示</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Shows the chosen process in a panel beside the table</source>
        <translation>選んだプロセスを表の横のパネルに表示</translation>
    </message>
</context>
<context>
    <name>ProcessMenu</name>
    <message>
        <source>Quit %1…</source>
        <translation>%1 を終了…</translation>
    </message>
    <message>
        <source>Show in group</source>
        <translation>グループを変更</translation>
    </message>
    <message>
        <source>As detected</source>
        <translation>検出どおり</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Quit…</source>
        <translation>終了…</translation>
    </message>
    <message numerus="yes">
        <source>Quit %n row(s)…</source>
        <translation>
            <numerusform>%n 行を終了…</numerusform>
        </translation>
    </message>
    <message>
        <source>Force kill…</source>
        <translation>強制終了…</translation>
    </message>
    <message numerus="yes">
        <source>Force kill %n row(s)…</source>
        <translation>
            <numerusform>%n 行を強制終了…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProcessRow</name>
    <message>
        <source>Quit (SIGTERM)</source>
        <translation>終了 (SIGTERM)</translation>
    </message>
    <message>
        <source>Force kill (SIGKILL)</source>
        <translation>強制終了 (SIGKILL)</translation>
    </message>
    <message>
        <source>%1 %2, CPU %3, memory %4</source>
        <translation>%1 %2、CPU %3、メモリ %4</translation>
    </message>
</context>
<context>
    <name>ProcessRowDelegate</name>
    <message>
        <source>%1 Its menu can end it.</source>
        <translation>%1 行のメニューから終了できます。</translation>
    </message>
</context>
<context>
    <name>ProcessTableModel</name>
    <message>
        <source>Force kill one</source>
        <translation>これを強制終了</translation>
    </message>
    <message>
        <source>Quit all %1</source>
        <translation>%1 個をすべて終了</translation>
    </message>
    <message>
        <source>Quit one</source>
        <translation>これを終了</translation>
    </message>
    <message>
        <source>Nuke all %1 (with confirm)</source>
        <translation>%1 個を一掃 (確認あり)</translation>
    </message>
    <message>
        <source>Nuke all %1 “%2” processes</source>
        <translation>%1 個の「%2」プロセスを一掃</translation>
    </message>
    <message>
        <source>%1, row %2 of %3</source>
        <translation>%1、%3 行中 %2 行目</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>level %1</source>
        <translation>レベル %1</translation>
    </message>
    <message>
        <source>folded</source>
        <translation>折りたたみ</translation>
    </message>
    <message>
        <source>open</source>
        <translation>展開</translation>
    </message>
    <message>
        <source>ended</source>
        <translation>終了済み</translation>
    </message>
    <message>
        <source>asked to end</source>
        <translation>終了を要求済み</translation>
    </message>
</context>
<context>
    <name>ProcessTableView</name>
    <message>
        <source>Processes</source>
        <translation>プロセス</translation>
    </message>
    <message>
        <source>Hide %1</source>
        <translation>%1 を隠す</translation>
    </message>
    <message>
        <source>Move column</source>
        <translation>列を移動</translation>
    </message>
    <message>
        <source>Reset columns</source>
        <translation>列をリセット</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>左へ</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>右へ</translation>
    </message>
</context>
<context>
    <name>ProcessesView</name>
    <message numerus="yes">
        <source>%1 of %n process(es)</source>
        <translation>
            <numerusform>%n 個中 %1 個のプロセス</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 names of %n process(es)</source>
        <translation>
            <numerusform>%n 個のプロセスの %1 個の名前</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. The order is held while a row is in use; F5 sorts anew.</source>
        <translation>%1。行の使用中は並び順を保ちます。F5 で並べ替えます。</translation>
    </message>
    <message>
        <source>%1, as they were when power became low.</source>
        <translation>%1（省電力になる前の状態）。</translation>
    </message>
</context>
<context>
    <name>ProjectLeftovers</name>
    <message>
        <source>cancelled</source>
        <translation>キャンセルされました</translation>
    </message>
    <message>
        <source>it did not finish</source>
        <translation>完了しませんでした</translation>
    </message>
    <message>
        <source>a program that is unknown</source>
        <translation>不明なプログラム</translation>
    </message>
    <message>
        <source>something in it is new, or is on the list of what is never cleaned</source>
        <translation>中に新しいもの、またはクリーンアップしないリストにあるものがあります</translation>
    </message>
    <message>
        <source>in use by %1</source>
        <translation>%1 が使用中</translation>
    </message>
</context>
<context>
    <name>ProjectLeftoversSheet</name>
    <message>
        <source>Add folder…</source>
        <translation>フォルダーを追加…</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>ホームフォルダー</translation>
    </message>
    <message>
        <source>Search projects</source>
        <translation>プロジェクトを検索</translation>
    </message>
    <message>
        <source>Search again</source>
        <translation>再検索</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Project leftovers</source>
        <translation>プロジェクトの残り</translation>
    </message>
    <message>
        <source>Folders that builds and installations have left. The project&apos;s own tools make them again, which takes time and perhaps the network.</source>
        <translation>ビルドやインストールが残したフォルダー。プロジェクトのツールが作り直しますが、時間と、場合によってはネットワークが必要です。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>プロジェクト</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>最終使用</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>備考</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>プロジェクト</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>何も見つかりません</translation>
    </message>
    <message>
        <source>Looking for projects…</source>
        <translation>プロジェクトを検索中…</translation>
    </message>
    <message>
        <source>Stop searching or removing</source>
        <translation>検索または削除を停止</translation>
    </message>
    <message>
        <source>Look for projects in</source>
        <translation>プロジェクトを探す場所</translation>
    </message>
    <message>
        <source>Looks in the home folder, without hidden folders</source>
        <translation>ホームフォルダーを検索（隠しフォルダーを除く）</translation>
    </message>
    <message>
        <source>Looks in %1</source>
        <translation>%1 を検索</translation>
    </message>
    <message>
        <source>and %1 more: search to see them</source>
        <translation>ほか %1 件: 検索すると表示されます</translation>
    </message>
    <message>
        <source>the search (%1)</source>
        <translation>検索 (%1)</translation>
    </message>
    <message>
        <source>Not finished: %1</source>
        <translation>未完了: %1</translation>
    </message>
    <message>
        <source>Remove…</source>
        <translation>削除…</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n folder(s) (%1)…</source>
        <translation>
            <numerusform>%n 個のフォルダーを削除 (%1)…</numerusform>
        </translation>
    </message>
    <message>
        <source>What goes</source>
        <translation>削除されるもの</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>ほか %1 件</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n folder(s)?</source>
        <translation>
            <numerusform>%n 個のフォルダーを削除しますか？</numerusform>
        </translation>
    </message>
    <message>
        <source>They are gone for good, with all that is in them. Sources stay.</source>
        <translation>内容ごと完全に削除されます。ソースは残ります。</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 を削除</translation>
    </message>
    <message>
        <source>No project here has anything left by a build. “Add folder…” looks in other places too.</source>
        <translation>ここのプロジェクトにビルドの残りはありません。「フォルダーを追加…」で他の場所も探せます。</translation>
    </message>
    <message>
        <source>“Stop” ends the search and keeps what it has found.</source>
        <translation>「停止」で検索を終え、見つかったものは残ります。</translation>
    </message>
    <message>
        <source>No projects match</source>
        <translation>一致するプロジェクトがありません</translation>
    </message>
    <message>
        <source>The search looks in the path, the folders and the note of each project.</source>
        <translation>各プロジェクトのパス、フォルダー、メモを検索します。</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>検索を消去</translation>
    </message>
    <message>
        <source>The search did not finish</source>
        <translation>検索は完了しませんでした</translation>
    </message>
</context>
<context>
    <name>ProtectedProcesses</name>
    <message>
        <source>It is the first process of this system, which ends with it.</source>
        <translation>このシステムの最初のプロセスで、システムも一緒に終了します。</translation>
    </message>
    <message>
        <source>It draws the screen: every window closes, and what is not saved in them is lost.</source>
        <translation>画面を描画しています。すべてのウィンドウが閉じ、保存していない内容は失われます。</translation>
    </message>
    <message>
        <source>It holds your login: you are logged out, and what is not saved is lost.</source>
        <translation>ログインを保っています。ログアウトされ、保存していない内容は失われます。</translation>
    </message>
    <message>
        <source>It runs the services of your login, such as sound and the message bus, and much of the desktop. They end with it.</source>
        <translation>音声やメッセージバスなどログインのサービスと、デスクトップの多くを動かしています。これらも一緒に終了します。</translation>
    </message>
    <message>
        <source>Tavrin was started from it and may end with it, as may everything else that was.</source>
        <translation>Tavrin はここから起動されており、同じく起動されたものとともに終了することがあります。</translation>
    </message>
</context>
<context>
    <name>QuickKillEditorSheet</name>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Process name pattern (substring match)</source>
        <translation>プロセス名のパターン（部分一致）</translation>
    </message>
    <message>
        <source>Min idle minutes</source>
        <translation>最小アイドル時間（分）</translation>
    </message>
    <message>
        <source>Min RAM %1 MB</source>
        <translation>最小 RAM %1 MB</translation>
    </message>
    <message>
        <source>Use SIGKILL (force)</source>
        <translation>SIGKILL を使う（強制）</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>QuickKillPreset</name>
    <message>
        <source>pattern: %1</source>
        <translation>パターン: %1</translation>
    </message>
    <message>
        <source>idle≥%1m</source>
        <translation>アイドル≥%1分</translation>
    </message>
    <message>
        <source>RAM≥%1MB</source>
        <translation>RAM≥%1 MB</translation>
    </message>
    <message>
        <source>force</source>
        <translation>強制</translation>
    </message>
    <message>
        <source>%1: nothing matched</source>
        <translation>%1: 一致なし</translation>
    </message>
    <message>
        <source>%1: killed %2/%3</source>
        <translation>%1: %2/%3 を終了</translation>
    </message>
</context>
<context>
    <name>QuickKillsCard</name>
    <message>
        <source>Quick Kills</source>
        <translation>クイック終了</translation>
    </message>
    <message>
        <source>Preset purges for common RAM hogs</source>
        <translation>RAM の大食いに対するプリセット</translation>
    </message>
    <message>
        <source>No presets. The settings add some under Quick Kills, or bring the built-in ones back.</source>
        <translation>プリセットがありません。設定の「クイック終了」で追加するか、標準のものを戻せます。</translation>
    </message>
</context>
<context>
    <name>QuickKillsTab</name>
    <message>
        <source>Quick Kills</source>
        <translation>クイック終了</translation>
    </message>
    <message>
        <source>Custom Quick Kill presets</source>
        <translation>カスタムのクイック終了プリセット</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Reset to defaults</source>
        <translation>既定値に戻す</translation>
    </message>
    <message>
        <source>New preset</source>
        <translation>新しいプリセット</translation>
    </message>
    <message>
        <source>Edit preset</source>
        <translation>プリセットを編集</translation>
    </message>
</context>
<context>
    <name>Remains</name>
    <message>
        <source>Left by %1</source>
        <translation>%1 の残り</translation>
    </message>
    <message numerus="yes">
        <source>%1 runs %n time(s) under %2</source>
        <translation>
            <numerusform>%1 が %2 の下で %n 回実行中</numerusform>
        </translation>
    </message>
    <message>
        <source>ended %1: %2</source>
        <translation>%1 に終了: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n older one(s)</source>
        <translation>
            <numerusform>古いもの %n 個</numerusform>
        </translation>
    </message>
    <message>
        <source>End left-overs</source>
        <translation>残りを終了</translation>
    </message>
    <message>
        <source>End duplicates</source>
        <translation>重複を終了</translation>
    </message>
</context>
<context>
    <name>RemainsHeader</name>
    <message>
        <source>Expanded</source>
        <translation>展開</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>折りたたみ</translation>
    </message>
</context>
<context>
    <name>ReturnTexts</name>
    <message>
        <source>≤ %1 will come back</source>
        <translation>≤ %1 が空きます</translation>
    </message>
    <message>
        <source>≈ %1 will come back</source>
        <translation>≈ %1 が空きます</translation>
    </message>
    <message>
        <source>Promised: %1 in memory, %2 in swap. Came back: %3 in memory, %4 in swap.</source>
        <translation>見込み: メモリ %1、スワップ %2。実際の解放: メモリ %3、スワップ %4。</translation>
    </message>
</context>
<context>
    <name>RootView</name>
    <message>
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>セクション</translation>
    </message>
    <message>
        <source>Hide sidebar</source>
        <translation>サイドバーを隠す</translation>
    </message>
    <message>
        <source>Show sidebar</source>
        <translation>サイドバーを表示</translation>
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
        <translation>空き RAM 不足</translation>
    </message>
    <message>
        <source>Only %1 GB free — consider quitting top hogs or cleaning caches.</source>
        <translation>空きは %1 GB だけです — 大きなプロセスの終了やキャッシュのクリーンを検討してください。</translation>
    </message>
    <message>
        <source>RAM getting tight</source>
        <translation>RAM が少なくなっています</translation>
    </message>
    <message>
        <source>%1 GB free.</source>
        <translation>空き %1 GB。</translation>
    </message>
    <message>
        <source>Programs wait for memory</source>
        <translation>プログラムがメモリを待っています</translation>
    </message>
    <message>
        <source>%1 of the last ten seconds. Free RAM, or quit what grows.</source>
        <translation>直近 10 秒の %1。RAM を解放するか、増え続けるものを終了してください。</translation>
    </message>
    <message>
        <source>Memory full in about %1 min</source>
        <translation>約 %1 分でメモリが満杯</translation>
    </message>
    <message>
        <source>Memory full in about %1 min — %2 grow %3/min</source>
        <translation>約 %1 分でメモリが満杯 — %2 が毎分 %3 増加</translation>
    </message>
    <message>
        <source>Memory full in about %1 min — %2 grows %3/min</source>
        <translation>約 %1 分でメモリが満杯 — %2 が毎分 %3 増加</translation>
    </message>
    <message>
        <source>%1 are left, with swap.</source>
        <translation>残り %1（スワップを含む）。</translation>
    </message>
    <message>
        <source>The kernel</source>
        <translation>カーネル</translation>
    </message>
    <message>
        <source>%1 ended %2 at %3 because memory ran out</source>
        <translation>メモリ不足のため、%1が %3 に %2 を終了しました</translation>
    </message>
    <message>
        <source>%1 ended %2 (PID %3%4) at %5 because memory ran out</source>
        <translation>メモリ不足のため、%1が %5 に %2 (PID %3%4) を終了しました</translation>
    </message>
    <message>
        <source>Judged by what vanished then: the system&apos;s record is not readable.</source>
        <translation>そのとき消えたものから判断しました: システムの記録を読めません。</translation>
    </message>
    <message>
        <source>CPU saturated</source>
        <translation>CPU が飽和</translation>
    </message>
    <message>
        <source>%1 total — top: %2</source>
        <translation>合計 %1 — 最大: %2</translation>
    </message>
    <message>
        <source>%1 is running hot (%2)</source>
        <translation>%1が高温です (%2)</translation>
    </message>
    <message>
        <source>%1 is throttling — reduce parallel agentic work or quit Docker/ollama.</source>
        <translation>%1 が速度を落としています — 並行するエージェント作業を減らすか、Docker/ollama を終了してください。</translation>
    </message>
    <message>
        <source>Heavy swap usage</source>
        <translation>スワップの多用</translation>
    </message>
    <message>
        <source>%1 GB swapped — system will feel sluggish.</source>
        <translation>%1 GB をスワップ中 — システムが重くなります。</translation>
    </message>
    <message>
        <source>Idle agent — %1</source>
        <translation>アイドルのエージェント — %1</translation>
    </message>
    <message>
        <source>Idle agent — %1 in %2</source>
        <translation>アイドルのエージェント — %1 (%2)</translation>
    </message>
    <message>
        <source>Idle %1 min, %2 RAM. Quit?</source>
        <translation>アイドル %1 分、RAM %2。終了しますか？</translation>
    </message>
    <message>
        <source>Idle %1 min, %2 RAM.</source>
        <translation>アイドル %1 分、RAM %2。</translation>
    </message>
    <message>
        <source>Browsers using %1</source>
        <translation>ブラウザが %1 を使用</translation>
    </message>
    <message>
        <source>That&apos;s %1 of total RAM. Closing idle tabs frees the most memory fastest.</source>
        <translation>全 RAM の %1 です。使っていないタブを閉じると、最も早く多くのメモリが空きます。</translation>
    </message>
    <message>
        <source>Caches reclaimable: %1</source>
        <translation>回収できるキャッシュ: %1</translation>
    </message>
    <message>
        <source>%1 holds %2</source>
        <translation>%1 が %2 を使用</translation>
    </message>
</context>
<context>
    <name>SamplingTab</name>
    <message>
        <source>Sampling</source>
        <translation>サンプリング</translation>
    </message>
    <message>
        <source>Sampling cadence</source>
        <translation>サンプリングの頻度</translation>
    </message>
    <message>
        <source>Poll interval</source>
        <translation>取得間隔</translation>
    </message>
    <message>
        <source>%1s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>History retention</source>
        <translation>履歴の保持期間</translation>
    </message>
    <message>
        <source>Keeps %1 samples for the Overview sparklines.</source>
        <translation>概要のグラフ用に %1 個のサンプルを保持します。</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>電源</translation>
    </message>
    <message>
        <source>Pause sampling on Low Power Mode</source>
        <translation>省電力モードではサンプリングを一時停止</translation>
    </message>
</context>
<context>
    <name>SamplingTexts</name>
    <message>
        <source>Processes are not read while power is low. “Pause sampling on Low Power Mode” in the settings, under Sampling, changes that.</source>
        <translation>省電力中はプロセスを読み取りません。設定の「サンプリング」にある「省電力モードではサンプリングを一時停止」で変更できます。</translation>
    </message>
    <message>
        <source>The system lists no processes now. F5 reads them again.</source>
        <translation>システムは今プロセスを示していません。F5 で読み直します。</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Clear search</source>
        <translation>検索を消去</translation>
    </message>
</context>
<context>
    <name>ServerRow</name>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Orphan %1, PID %2, parent: %3, %4</source>
        <translation>孤立 %1、PID %2、親: %3、%4</translation>
    </message>
    <message>
        <source>Running %1, PID %2, parent: %3, %4</source>
        <translation>実行中 %1、PID %2、親: %3、%4</translation>
    </message>
    <message>
        <source>parent: %1</source>
        <translation>親: %1</translation>
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
        <translation>%1、%2 時間 CPU 未使用</translation>
    </message>
    <message>
        <source>%1, no CPU for %2 min</source>
        <translation>%1、%2 分間 CPU 未使用</translation>
    </message>
    <message>
        <source>in use by %1</source>
        <translation>%1 が使用中</translation>
    </message>
    <message>
        <source>in use by %1 in %2</source>
        <translation>%1 が使用中 (%2)</translation>
    </message>
    <message>
        <source>runs in the container %1</source>
        <translation>コンテナー %1 で実行中</translation>
    </message>
    <message>
        <source>run by the service manager as %1</source>
        <translation>サービスマネージャーが %1 として実行</translation>
    </message>
    <message>
        <source>orphan: no agent or editor above it</source>
        <translation>孤立: 上にエージェントもエディターもありません</translation>
    </message>
    <message>
        <source>orphan: its host %1 ended at %2</source>
        <translation>孤立: ホスト %1 が %2 に終了</translation>
    </message>
    <message>
        <source>orphan: no longer below its host %1</source>
        <translation>孤立: ホスト %1 の下にはもうありません</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>%1 in %2</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>SessionActions</name>
    <message>
        <source>End %1?</source>
        <translation>%1 を終了しますか？</translation>
    </message>
    <message>
        <source>End session</source>
        <translation>セッションを終了</translation>
    </message>
    <message>
        <source>Could not pause %1.</source>
        <translation>%1 を一時停止できませんでした。</translation>
    </message>
    <message>
        <source>Could not resume %1.</source>
        <translation>%1 を再開できませんでした。</translation>
    </message>
    <message>
        <source>Could not open %1.</source>
        <translation>%1 を開けませんでした。</translation>
    </message>
</context>
<context>
    <name>SessionControls</name>
    <message>
        <source>Search sessions</source>
        <translation>セッションを検索</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>並べ替え</translation>
    </message>
    <message>
        <source>Agent, project, name, state, process or port (:5173)</source>
        <translation>エージェント、プロジェクト、名前、状態、プロセス、ポート (:5173)</translation>
    </message>
</context>
<context>
    <name>SessionDialogs</name>
    <message>
        <source>What ends</source>
        <translation>終了するもの</translation>
    </message>
    <message>
        <source>The agent is asked first and has 5 s to save. What it started ends with it, and what stays is force-killed.</source>
        <translation>まずエージェントに終了を求め、保存のために 5 秒待ちます。それが起動したものも一緒に終了し、残ったものは強制終了します。</translation>
    </message>
    <message>
        <source>The processes are asked to end, and what stays is force-killed.</source>
        <translation>プロセスに終了を求め、残ったものは強制終了します。</translation>
    </message>
    <message>
        <source>This takes the conversation up again: %1</source>
        <translation>会話を再開するコマンド: %1</translation>
    </message>
    <message>
        <source>Stops the session and all that it started: they keep their memory and use no processor time until you resume them, or close this program.</source>
        <translation>セッションと、それが起動したものをすべて止めます。再開するかこのプログラムを閉じるまで、メモリは保持したまま、プロセッサー時間は使いません。</translation>
    </message>
    <message>
        <source>The terminal&apos;s shell may report the agent as stopped. After Resume, type fg there.</source>
        <translation>端末のシェルがエージェントの停止を報告することがあります。再開後、そこで fg と入力してください。</translation>
    </message>
    <message>
        <source>Pause %1?</source>
        <translation>%1 を一時停止しますか？</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
</context>
<context>
    <name>SessionHeader</name>
    <message>
        <source>%1 in swap</source>
        <translation>スワップ %1</translation>
    </message>
    <message>
        <source>%1, %2, %3, %4 CPU, %5</source>
        <translation>%1、%2、%3、CPU %4、%5</translation>
    </message>
    <message>
        <source>last active %1</source>
        <translation>最終アクティブ: %1</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>展開</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>折りたたみ</translation>
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
        <translation>%1 で待ち受け</translation>
    </message>
    <message>
        <source>running for %1</source>
        <translation>実行時間 %1</translation>
    </message>
    <message>
        <source>%1, PID %2</source>
        <translation>%1、PID %2</translation>
    </message>
</context>
<context>
    <name>SessionResultView</name>
    <message>
        <source>%1: ended %2 of %3, freed ~%4</source>
        <translation>%1: %3 個中 %2 個を終了、約 %4 を解放</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Take the conversation up again: %1</source>
        <translation>会話を再開: %1</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copy command</source>
        <translation>コマンドをコピー</translation>
    </message>
</context>
<context>
    <name>SessionRow</name>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>Copy details</source>
        <translation>詳細をコピー</translation>
    </message>
    <message>
        <source>End</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>End session</source>
        <translation>セッションを終了</translation>
    </message>
    <message>
        <source>Pause…</source>
        <translation>一時停止…</translation>
    </message>
    <message>
        <source>End session…</source>
        <translation>セッションを終了…</translation>
    </message>
</context>
<context>
    <name>SessionTexts</name>
    <message>
        <source>agent</source>
        <translation>エージェント</translation>
    </message>
    <message>
        <source>Agent</source>
        <translation>エージェント</translation>
    </message>
    <message numerus="yes">
        <source>%n agent(s)</source>
        <translation>
            <numerusform>エージェント %n 個</numerusform>
        </translation>
    </message>
    <message>
        <source>MCP server</source>
        <translation>MCP サーバー</translation>
    </message>
    <message>
        <source>MCP servers</source>
        <translation>MCP サーバー</translation>
    </message>
    <message numerus="yes">
        <source>%n server(s)</source>
        <translation>
            <numerusform>サーバー %n 個</numerusform>
        </translation>
    </message>
    <message>
        <source>dev server</source>
        <translation>開発サーバー</translation>
    </message>
    <message>
        <source>Dev servers</source>
        <translation>開発サーバー</translation>
    </message>
    <message numerus="yes">
        <source>%n dev server(s)</source>
        <translation>
            <numerusform>開発サーバー %n 個</numerusform>
        </translation>
    </message>
    <message>
        <source>browser</source>
        <translation>ブラウザ</translation>
    </message>
    <message>
        <source>Browsers</source>
        <translation>ブラウザ</translation>
    </message>
    <message numerus="yes">
        <source>%n browser(s)</source>
        <translation>
            <numerusform>ブラウザ %n 個</numerusform>
        </translation>
    </message>
    <message>
        <source>command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>コマンド</translation>
    </message>
    <message numerus="yes">
        <source>%n command(s)</source>
        <translation>
            <numerusform>コマンド %n 個</numerusform>
        </translation>
    </message>
    <message>
        <source>Working</source>
        <translation>作業中</translation>
    </message>
    <message>
        <source>Waiting for you</source>
        <translation>入力待ち</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>アイドル</translation>
    </message>
    <message numerus="yes">
        <source>%n session(s)</source>
        <translation>
            <numerusform>セッション %n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n idle</source>
        <translation>
            <numerusform>アイドル %n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n process(es)</source>
        <translation>
            <numerusform>プロセス %n 個</numerusform>
        </translation>
    </message>
    <message>
        <source>resident %1</source>
        <translation>常駐 %1</translation>
    </message>
</context>
<context>
    <name>SessionsView</name>
    <message>
        <source>No sessions</source>
        <translation>セッションがありません</translation>
    </message>
    <message>
        <source>Coding agents that run in a terminal or an editor appear here, each with its MCP servers, dev servers, browsers and commands, and with what an ended one left running.</source>
        <translation>端末やエディターで動くコーディングエージェントがここに表示されます。それぞれの MCP サーバー、開発サーバー、ブラウザ、コマンドと、終了したエージェントが残したものも表示されます。</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>検索を消去</translation>
    </message>
    <message>
        <source>No sessions match</source>
        <translation>一致するセッションがありません</translation>
    </message>
    <message>
        <source>Every word of the search has to be in the agent, the project, the name, the state, a process or a port of the session.</source>
        <translation>検索のすべての語が、セッションのエージェント、プロジェクト、名前、状態、プロセス、ポートのいずれかに含まれている必要があります。</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>セッション</translation>
    </message>
    <message>
        <source>Left-overs</source>
        <translation>残り</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>重複</translation>
    </message>
</context>
<context>
    <name>SettingsScene</name>
    <message>
        <source>Tavrin Settings</source>
        <translation>Tavrin の設定</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>タブ</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>次のタブ</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>前のタブ</translation>
    </message>
</context>
<context>
    <name>ShortcutsSheet</name>
    <message>
        <source>Keyboard</source>
        <translation>キーボード</translation>
    </message>
    <message>
        <source>Everywhere</source>
        <translation>全体</translation>
    </message>
    <message>
        <source>Go to a section</source>
        <translation>セクションへ移動</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>ウィンドウを閉じる</translation>
    </message>
    <message>
        <source>Quit Tavrin</source>
        <translation>Tavrin を終了</translation>
    </message>
    <message>
        <source>This sheet</source>
        <translation>この一覧</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>プロセス</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Jump to a name</source>
        <translation>名前へ移動</translation>
    </message>
    <message>
        <source>its first letters</source>
        <translation>先頭の文字</translation>
    </message>
    <message>
        <source>First and last row</source>
        <translation>最初と最後の行</translation>
    </message>
    <message>
        <source>Select more rows, or all</source>
        <translation>さらに行を選択、またはすべて選択</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Force kill</source>
        <translation>強制終了</translation>
    </message>
    <message>
        <source>Menu of the row</source>
        <translation>行のメニュー</translation>
    </message>
    <message>
        <source>Copy the selected rows</source>
        <translation>選択した行をコピー</translation>
    </message>
    <message>
        <source>Fold or open a branch of the tree</source>
        <translation>ツリーの枝を折りたたむ、または開く</translation>
    </message>
    <message>
        <source>Read and sort anew</source>
        <translation>読み直して並べ替え</translation>
    </message>
    <message>
        <source>Leave the row</source>
        <translation>行から離れる</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Show or hide the sidebar</source>
        <translation>サイドバーの表示・非表示</translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>In progress</source>
        <translation>実行中</translation>
    </message>
</context>
<context>
    <name>Stepper</name>
    <message>
        <source>Less: %1</source>
        <translation>減らす: %1</translation>
    </message>
    <message>
        <source>More: %1</source>
        <translation>増やす: %1</translation>
    </message>
</context>
<context>
    <name>SummedMemory</name>
    <message>
        <source>resident %1, in swap %2</source>
        <translation>常駐 %1、スワップ %2</translation>
    </message>
    <message>
        <source>at least %1 (%2)</source>
        <translation>少なくとも %1 (%2)</translation>
    </message>
    <message>
        <source>about %1 (%2)</source>
        <translation>約 %1 (%2)</translation>
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
        <translation>コピー</translation>
    </message>
</context>
<context>
    <name>TextListEditor</name>
    <message>
        <source>Remove %1</source>
        <translation>%1 を削除</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>フォルダーを選択…</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>フォルダーを選択</translation>
    </message>
</context>
<context>
    <name>ThermalPage</name>
    <message>
        <source>Thermal</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>No temperatures</source>
        <translation>温度がありません</translation>
    </message>
    <message>
        <source>This computer shows no sensors to programs, as most virtual machines. The tile shows the state that the kernel reports.</source>
        <translation>多くの仮想マシンと同じく、このコンピューターはセンサーをプログラムに公開していません。タイルにはカーネルが報告する状態を表示します。</translation>
    </message>
    <message>
        <source>Sensors</source>
        <translation>センサー</translation>
    </message>
    <message>
        <source>A sensor does not answer. It is asked again once it does, while this page is open.</source>
        <translation>応答しないセンサーがあります。応答し次第、このページが開いている間に再び問い合わせます。</translation>
    </message>
</context>
<context>
    <name>ThermalState</name>
    <message>
        <source>Cool</source>
        <translation>低温</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>やや高温</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>高温</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>危険</translation>
    </message>
</context>
<context>
    <name>Translations</name>
    <message>
        <source>Claude Code plugin cache</source>
        <translation>Claude Code プラグイン</translation>
    </message>
    <message>
        <source>npx cache</source>
        <translation>npx のキャッシュ</translation>
    </message>
    <message>
        <source>Playwright browsers</source>
        <translation>Playwright のブラウザ</translation>
    </message>
    <message>
        <source>User caches</source>
        <translation>ユーザーのキャッシュ</translation>
    </message>
    <message>
        <source>User logs</source>
        <translation>ユーザーのログ</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>ゴミ箱</translation>
    </message>
    <message>
        <source>Old /tmp (&gt;7d)</source>
        <translation>古い /tmp (&gt;7 日)</translation>
    </message>
    <message>
        <source>Old Downloads (&gt;30d)</source>
        <translation>古いダウンロード (&gt;30 日)</translation>
    </message>
    <message>
        <source>Old Desktop screenshots (&gt;30d)</source>
        <translation>古いスクリーンショット (&gt;30 日)</translation>
    </message>
    <message>
        <source>Claude Code &amp; Agents</source>
        <translation>Claude Code・エージェント</translation>
    </message>
    <message>
        <source>IDEs</source>
        <translation>IDE</translation>
    </message>
    <message>
        <source>Terminals</source>
        <translation>端末</translation>
    </message>
    <message>
        <source>Browsers</source>
        <translation>ブラウザ</translation>
    </message>
    <message>
        <source>Docker &amp; Containers</source>
        <translation>Docker とコンテナー</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>System</source>
        <translation>システム</translation>
    </message>
    <message>
        <source>Gradle logs (&gt;7d)</source>
        <translation>Gradle のログ (&gt;7 日)</translation>
    </message>
    <message>
        <source>Cargo sources and checkouts</source>
        <translation>Cargo のソースとチェックアウト</translation>
    </message>
    <message>
        <source>Go build cache</source>
        <translation>Go のビルドキャッシュ</translation>
    </message>
    <message>
        <source>Rust toolchains</source>
        <translation>Rust のツールチェーン</translation>
    </message>
    <message>
        <source>Conda packages</source>
        <translation>Conda のパッケージ</translation>
    </message>
    <message>
        <source>Editor caches</source>
        <translation>エディターのキャッシュ</translation>
    </message>
    <message>
        <source>Local history of JetBrains editors</source>
        <translation>JetBrains エディターのローカル履歴</translation>
    </message>
    <message>
        <source>Agent logs (&gt;7d)</source>
        <translation>エージェントのログ (&gt;7 日)</translation>
    </message>
    <message>
        <source>Agent shell snapshots (&gt;30d)</source>
        <translation>エージェントのシェル状態 (&gt;30 日)</translation>
    </message>
    <message>
        <source>Texts pasted into Claude Code (&gt;30d)</source>
        <translation>Claude Code に貼り付けたテキスト (&gt;30 日)</translation>
    </message>
    <message>
        <source>Hugging Face models</source>
        <translation>Hugging Face のモデル</translation>
    </message>
    <message>
        <source>Ollama models</source>
        <translation>Ollama のモデル</translation>
    </message>
    <message>
        <source>LM Studio models</source>
        <translation>LM Studio のモデル</translation>
    </message>
    <message>
        <source>Flatpak application caches</source>
        <translation>Flatpak アプリのキャッシュ</translation>
    </message>
    <message>
        <source>Snap application caches</source>
        <translation>Snap アプリのキャッシュ</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>サムネイル</translation>
    </message>
    <message>
        <source>Shader caches</source>
        <translation>シェーダーキャッシュ</translation>
    </message>
    <message>
        <source>Crash reports (&gt;7d)</source>
        <translation>クラッシュレポート (&gt;7 日)</translation>
    </message>
    <message>
        <source>Downloaded system packages</source>
        <translation>ダウンロード済みシステムパッケージ</translation>
    </message>
    <message>
        <source>System journal over 500 MB</source>
        <translation>500 MB を超えるシステムジャーナル</translation>
    </message>
    <message>
        <source>CPU% • RAM%</source>
        <translation>CPU% • RAM%</translation>
    </message>
    <message>
        <source>CPU%</source>
        <translation>CPU%</translation>
    </message>
    <message>
        <source>RAM%</source>
        <translation>RAM%</translation>
    </message>
    <message>
        <source>Icon only</source>
        <translation>アイコンのみ</translation>
    </message>
    <message>
        <source>5 min</source>
        <translation>5 分</translation>
    </message>
    <message>
        <source>25 min</source>
        <translation>25 分</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 時間</translation>
    </message>
    <message>
        <source>Project leftovers</source>
        <translation>プロジェクトの残り</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>Optimize</source>
        <translation>最適化</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>プロセス</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <translation>クリーンアップ</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>セッション</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>メモリ</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Last active</source>
        <translation>最終アクティブ</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>プロジェクト</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Sampling</source>
        <translation>サンプリング</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Quick Kills</source>
        <translation>クイック終了</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
</context>
<context>
    <name>WidgetView</name>
    <message>
        <source>Open dashboard</source>
        <translation>メインウィンドウを開く</translation>
    </message>
    <message>
        <source>Hide widget</source>
        <translation>ウィジェットを隠す</translation>
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
        <translation>ディスク空き</translation>
    </message>
    <message>
        <source>Therm</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Groups (RAM)</source>
        <translation>グループ (RAM)</translation>
    </message>
    <message numerus="yes">
        <source>+ %n more alert(s)</source>
        <translation>
            <numerusform>+ ほか %n 件の警告</numerusform>
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
        <translation>コンピューター</translation>
    </message>
    <message>
        <source>task bar</source>
        <translation>タスクバー</translation>
    </message>
    <message>
        <source>Status area</source>
        <translation>ステータス領域</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>シンボル</translation>
    </message>
    <message>
        <source>System</source>
        <translation>システム</translation>
    </message>
</context>
</TS>
