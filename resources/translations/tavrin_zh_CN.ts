<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AlertCard</name>
    <message>
        <source>Details</source>
        <translation>详情</translation>
    </message>
    <message>
        <source>End session…</source>
        <translation>结束会话…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
</context>
<context>
    <name>AlertNotifier</name>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Free RAM…</source>
        <translation>释放内存…</translation>
    </message>
    <message>
        <source>End session…</source>
        <translation>结束会话…</translation>
    </message>
    <message>
        <source>Quit %1</source>
        <translation>退出 %1</translation>
    </message>
    <message>
        <source>Cleaning is done</source>
        <translation>清理完成</translation>
    </message>
</context>
<context>
    <name>AlertStripView</name>
    <message>
        <source>System looks healthy.</source>
        <translation>系统状态良好。</translation>
    </message>
</context>
<context>
    <name>AlertsTab</name>
    <message>
        <source>Alerts</source>
        <translation>提醒</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>内存</translation>
    </message>
    <message>
        <source>Low RAM warning</source>
        <translation>内存不足警告</translation>
    </message>
    <message>
        <source>Free RAM threshold</source>
        <translation>可用内存阈值</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>Notify when RAM is getting tight</source>
        <translation>内存趋紧时通知</translation>
    </message>
    <message>
        <source>Memory pressure</source>
        <translation>内存压力</translation>
    </message>
    <message>
        <source>Programs wait for memory</source>
        <translation>有程序在等待内存</translation>
    </message>
    <message>
        <source>Forecast</source>
        <translation>预测</translation>
    </message>
    <message>
        <source>Memory full within 30 minutes</source>
        <translation>内存将在 30 分钟内耗尽</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>内存耗尽</translation>
    </message>
    <message>
        <source>What was ended because memory ran out</source>
        <translation>因内存耗尽而被结束的程序</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>CPU saturation</source>
        <translation>CPU 饱和</translation>
    </message>
    <message>
        <source>CPU threshold</source>
        <translation>CPU 阈值</translation>
    </message>
    <message>
        <source>Thermal</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Thermal pressure warning</source>
        <translation>过热警告</translation>
    </message>
    <message>
        <source>Idle agents</source>
        <translation>空闲的代理</translation>
    </message>
    <message>
        <source>Flag idle Claude / agentic processes</source>
        <translation>标记空闲的 Claude 和代理进程</translation>
    </message>
    <message>
        <source>Min idle</source>
        <translation>最短空闲</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分钟</translation>
    </message>
    <message>
        <source>Min RAM</source>
        <translation>最少内存</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Browsers</source>
        <translation>浏览器</translation>
    </message>
    <message>
        <source>Browser RAM dominance</source>
        <translation>浏览器占用大量内存</translation>
    </message>
    <message>
        <source>Of total RAM</source>
        <translation>占总内存</translation>
    </message>
    <message>
        <source>Caches</source>
        <translation>缓存</translation>
    </message>
    <message>
        <source>Caches reclaimable</source>
        <translation>可清理的缓存</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>阈值</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>会话</translation>
    </message>
    <message>
        <source>Large session</source>
        <translation>大型会话</translation>
    </message>
    <message>
        <source>Session holds more than</source>
        <translation>会话占用超过</translation>
    </message>
    <message>
        <source>Notify</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Notify: %1</source>
        <translation>通知：%1</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Notify of heavy swap usage</source>
        <translation>大量使用交换空间时通知</translation>
    </message>
    <message>
        <source>Notify of a finished long clean</source>
        <translation>长时间清理完成后通知</translation>
    </message>
    <message>
        <source>Quiet time</source>
        <translation>免打扰时段</translation>
    </message>
    <message>
        <source>Quiet from</source>
        <translation>开始时间</translation>
    </message>
    <message>
        <source>Quiet until</source>
        <translation>结束时间</translation>
    </message>
    <message>
        <source>This desktop has no service that shows notifications.</source>
        <translation>此桌面没有显示通知的服务。</translation>
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
        <translation>打开</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
</context>
<context>
    <name>AutoOptimizeCard</name>
    <message>
        <source>Auto-Optimize</source>
        <translation>自动优化</translation>
    </message>
    <message>
        <source>Every 30 min: kill orphan MCPs + send memory pressure</source>
        <translation>每 30 分钟：结束孤立的 MCP 服务器并发送内存压力</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>已启用</translation>
    </message>
    <message>
        <source>Only safe actions run on the timer. Quitting visible apps stays manual on purpose.</source>
        <translation>定时器只执行安全的操作。退出可见的应用特意留给您手动完成。</translation>
    </message>
    <message>
        <source>Running in background</source>
        <translation>正在后台运行</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>CacheCard</name>
    <message>
        <source>Not scanned yet</source>
        <translation>尚未扫描</translation>
    </message>
    <message>
        <source>Scanned %1</source>
        <translation>扫描：%1</translation>
    </message>
    <message>
        <source>Not in Clean All.</source>
        <translation>不包含在“全部清理”中。</translation>
    </message>
    <message>
        <source>not in Clean All</source>
        <translation>不含在“全部清理”中</translation>
    </message>
</context>
<context>
    <name>CacheDetailDrawer</name>
    <message>
        <source>%1 reclaimable</source>
        <translation>可清理 %1</translation>
    </message>
    <message>
        <source>Will run: %1</source>
        <translation>将运行：%1</translation>
    </message>
    <message>
        <source>Breakdown</source>
        <translation>明细</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>移到回收站</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>未找到任何内容。</translation>
    </message>
    <message>
        <source>Rescan to see what it consists of.</source>
        <translation>请重新扫描以查看其内容。</translation>
    </message>
    <message>
        <source>Clean %1</source>
        <translation>清理 %1</translation>
    </message>
</context>
<context>
    <name>CacheScanner</name>
    <message>
        <source>%1 cannot be cleaned: %2.</source>
        <translation>无法清理 %1：%2。</translation>
    </message>
    <message>
        <source>The tool calls %1 of it reclaimable.</source>
        <translation>该工具称其中 %1 可回收。</translation>
    </message>
</context>
<context>
    <name>CachesCard</name>
    <message>
        <source>Caches</source>
        <translation>缓存</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Clean All</source>
        <translation>全部清理</translation>
    </message>
    <message>
        <source>Stop cleaning</source>
        <translation>停止清理</translation>
    </message>
    <message>
        <source>Stopping %1 (%2 of %3)</source>
        <translation>正在停止 %1（%2/%3）</translation>
    </message>
    <message>
        <source>Cleaning %1 (%2 of %3)</source>
        <translation>正在清理 %1（%2/%3）</translation>
    </message>
    <message>
        <source>%1 reclaimable across %2 targets</source>
        <translation>可清理 %1，共 %2 个目标</translation>
    </message>
    <message>
        <source>Measuring %1 (%2 of %3)</source>
        <translation>正在测量 %1（%2/%3）</translation>
    </message>
    <message>
        <source>Nothing is measured yet. “Rescan” in the section Cleanup does that.</source>
        <translation>尚未测量任何内容。请在“清理”部分使用“重新扫描”。</translation>
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
        <translation>释放 ≤ %1</translation>
    </message>
    <message>
        <source>frees ≈ %1</source>
        <translation>释放 ≈ %1</translation>
    </message>
    <message>
        <source>%1, %2, %3, idle %4, %5</source>
        <translation>%1，%2，%3，空闲 %4，%5</translation>
    </message>
</context>
<context>
    <name>Cleaner</name>
    <message>
        <source>stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>there is no trash</source>
        <translation>没有回收站</translation>
    </message>
    <message>
        <source>its name is no text</source>
        <translation>其名称不是文本</translation>
    </message>
    <message>
        <source>%1 was not moved to the trash: %2</source>
        <translation>%1 未能移到回收站：%2</translation>
    </message>
    <message>
        <source>only old files can be moved</source>
        <translation>只能移动旧文件</translation>
    </message>
    <message>
        <source>it could not be listed</source>
        <translation>无法列出</translation>
    </message>
</context>
<context>
    <name>CleanupChoice</name>
    <message>
        <source>No volumes go</source>
        <translation>不会删除任何卷</translation>
    </message>
    <message>
        <source>Volumes that go, with all that is in them: %1</source>
        <translation>将连同全部内容一起删除的卷：%1</translation>
    </message>
</context>
<context>
    <name>CleanupConfirmation</name>
    <message>
        <source>Delete %1?</source>
        <translation>删除 %1？</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>删除 %1</translation>
    </message>
    <message>
        <source>Clean all reclaimable caches?</source>
        <translation>清理所有可清理的缓存？</translation>
    </message>
    <message>
        <source>Clean %1</source>
        <translation>清理 %1</translation>
    </message>
</context>
<context>
    <name>CleanupPreview</name>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Tick all that is shown</source>
        <translation>勾选所有显示的项目</translation>
    </message>
    <message>
        <source>Leave out all that is shown</source>
        <translation>排除所有显示的项目</translation>
    </message>
    <message>
        <source>Could not look into %1: %2</source>
        <translation>无法查看 %1：%2</translation>
    </message>
    <message>
        <source>%1 will come back</source>
        <translation>将释放 %1</translation>
    </message>
    <message numerus="yes">
        <source> • %n left out</source>
        <translation>
            <numerusform> • 已排除 %n 项</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CleanupPreviewModel</name>
    <message>
        <source>changed %1</source>
        <translation>更改于 %1</translation>
    </message>
    <message>
        <source>in use</source>
        <translation>使用中</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>更改时间</translation>
    </message>
</context>
<context>
    <name>CleanupPreviewView</name>
    <message>
        <source>What goes</source>
        <translation>将删除的内容</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>排除</translation>
    </message>
    <message>
        <source>Include</source>
        <translation>包含</translation>
    </message>
    <message>
        <source>Reveal</source>
        <translation>在文件夹中显示</translation>
    </message>
    <message>
        <source>Could not open %1.</source>
        <translation>无法打开 %1。</translation>
    </message>
    <message>
        <source>Nothing here has the text of the search. What is ticked stays so.</source>
        <translation>此处没有包含搜索文字的内容。已勾选的保持不变。</translation>
    </message>
</context>
<context>
    <name>CleanupTab</name>
    <message>
        <source>Cleanup</source>
        <translation>清理</translation>
    </message>
    <message>
        <source>Questions</source>
        <translation>确认</translation>
    </message>
    <message>
        <source>Ask before cleaning everything</source>
        <translation>全部清理前询问</translation>
    </message>
    <message>
        <source>When off, “Clean All” in Optimize starts at once.</source>
        <translation>关闭后，“优化”中的“全部清理”会立即开始。</translation>
    </message>
    <message>
        <source>Never clean</source>
        <translation>永不清理</translation>
    </message>
    <message>
        <source>Nothing is excluded.</source>
        <translation>没有排除任何内容。</translation>
    </message>
    <message>
        <source>Path or pattern, such as *.gguf</source>
        <translation>路径或模式，例如 *.gguf</translation>
    </message>
    <message>
        <source>Neither counted nor removed. A path keeps all below it.</source>
        <translation>既不计入也不删除。路径会保留其下的全部内容。</translation>
    </message>
    <message>
        <source>Project folders</source>
        <translation>项目文件夹</translation>
    </message>
    <message>
        <source>Your home folder</source>
        <translation>您的主文件夹</translation>
    </message>
    <message>
        <source>Where “Project leftovers” looks for projects. Hidden folders and other disks are left out.</source>
        <translation>“项目残留”在此查找项目。隐藏文件夹和其他磁盘会被略过。</translation>
    </message>
</context>
<context>
    <name>CleanupTexts</name>
    <message>
        <source>“%1”</source>
        <comment>a name</comment>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>另外 %1 个</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1和%2</translation>
    </message>
    <message numerus="yes">
        <source>%n volume(s), %1</source>
        <translation>
            <numerusform>%n 个卷，%1</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Gone for good: %1</source>
        <translation>永久删除：%1</translation>
    </message>
    <message>
        <source>Gone for good</source>
        <translation>永久删除</translation>
    </message>
    <message>
        <source>Runs %1</source>
        <translation>运行 %1</translation>
    </message>
    <message>
        <source>These are files of yours, no caches. They will be gone for good.</source>
        <translation>这些是您的文件，不是缓存。它们将被永久删除。</translation>
    </message>
    <message>
        <source>These files of yours will be gone for good: %1.</source>
        <translation>您的这些文件将被永久删除：%1。</translation>
    </message>
    <message>
        <source>Gone for good, with all that is in them: %1.</source>
        <translation>将连同全部内容永久删除：%1。</translation>
    </message>
    <message>
        <source>Stopped containers go too. Images and build caches are fetched or built again as needed.</source>
        <translation>已停止的容器也会删除。镜像和构建缓存会在需要时重新获取或构建。</translation>
    </message>
    <message>
        <source>Deleting cache files. Apps will rebuild caches as needed.</source>
        <translation>正在删除缓存文件。应用会在需要时重建缓存。</translation>
    </message>
    <message>
        <source>What goes: %1.</source>
        <translation>将删除：%1。</translation>
    </message>
    <message>
        <source>No volumes go.</source>
        <translation>不会删除任何卷。</translation>
    </message>
    <message>
        <source>Runs every cleanup with a size estimate above 0.</source>
        <translation>运行所有估计大小大于 0 的清理。</translation>
    </message>
    <message>
        <source>Apps will rebuild caches as needed.</source>
        <translation>应用会在需要时重建缓存。</translation>
    </message>
    <message>
        <source>Not so with what is yours. It will be gone for good: %1.</source>
        <translation>您自己的内容则不会。以下内容将被永久删除：%1。</translation>
    </message>
    <message>
        <source>Some of them overlap; the total counts what they share once.</source>
        <translation>其中一些相互重叠；总计中共有的部分只计一次。</translation>
    </message>
    <message>
        <source>Stopped: cleaned %1 of %2 targets, freed ~%3</source>
        <translation>已停止：清理了 %1 个目标（共 %2 个），释放约 %3</translation>
    </message>
    <message>
        <source>Cleaned %1 targets, freed ~%2</source>
        <translation>已清理 %1 个目标，释放约 %2</translation>
    </message>
    <message>
        <source>%1 came back on the disk</source>
        <translation>磁盘上回收了 %1</translation>
    </message>
    <message>
        <source>Not finished: %1</source>
        <translation>未完成：%1</translation>
    </message>
    <message>
        <source>It is unknown which volumes go, with all that is in them.</source>
        <translation>不清楚哪些卷会连同其全部内容一起消失。</translation>
    </message>
    <message>
        <source>unknown volumes</source>
        <translation>未知的卷</translation>
    </message>
</context>
<context>
    <name>CleanupView</name>
    <message>
        <source>Show all</source>
        <translation>全部显示</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>重新扫描</translation>
    </message>
    <message>
        <source>Clean All</source>
        <translation>全部清理</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <translation>清理</translation>
    </message>
    <message>
        <source>Also what this computer has nothing of</source>
        <translation>包括这台电脑上没有的内容</translation>
    </message>
    <message>
        <source>Cleanup targets</source>
        <translation>清理目标</translation>
    </message>
    <message>
        <source>Stop cleaning</source>
        <translation>停止清理</translation>
    </message>
    <message>
        <source>Reclaimable: %1</source>
        <translation>可清理：%1</translation>
    </message>
    <message>
        <source>Build folders of your projects, which their tools make again.</source>
        <translation>您项目的构建文件夹，其工具会重新生成。</translation>
    </message>
    <message>
        <source>Stopping %1 (%2 of %3)</source>
        <translation>正在停止 %1（%2/%3）</translation>
    </message>
    <message>
        <source>Cleaning %1 (%2 of %3)</source>
        <translation>正在清理 %1（%2/%3）</translation>
    </message>
    <message>
        <source>Measuring %1 (%2 of %3)</source>
        <translation>正在测量 %1（%2/%3）</translation>
    </message>
    <message>
        <source>nothing is measured yet: “Rescan” does that</source>
        <translation>尚未测量：请使用“重新扫描”</translation>
    </message>
    <message>
        <source>Stop measuring</source>
        <translation>停止测量</translation>
    </message>
</context>
<context>
    <name>Columns</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>分组</translation>
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
        <translation>内存</translation>
    </message>
    <message>
        <source>Own</source>
        <translation>独占</translation>
    </message>
    <message>
        <source>Memory that no other process shares</source>
        <translation>不与其他进程共享的内存</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>交换</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>线程</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>空闲</translation>
    </message>
    <message>
        <source>Procs</source>
        <translation>进程数</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>详情</translation>
    </message>
    <message>
        <source>Freed</source>
        <translation>释放</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>符号</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Idle≥</source>
        <translation>空闲≥</translation>
    </message>
    <message>
        <source>RAM≥</source>
        <translation>内存≥</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>强制</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/秒</translation>
    </message>
    <message>
        <source>Disk read</source>
        <translation>磁盘读取</translation>
    </message>
    <message>
        <source>Read from disks a second, of your own processes</source>
        <translation>每秒从磁盘读取的数据，仅限您自己的进程</translation>
    </message>
    <message>
        <source>Disk write</source>
        <translation>磁盘写入</translation>
    </message>
    <message>
        <source>Written to disks a second, of your own processes</source>
        <translation>每秒写入磁盘的数据，仅限您自己的进程</translation>
    </message>
    <message>
        <source>User</source>
        <translation>用户</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>启动时间</translation>
    </message>
    <message>
        <source>Parent</source>
        <translation>父进程</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>会话</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
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
        <translation>所有核心</translation>
    </message>
    <message>
        <source>Core %1</source>
        <translation>核心 %1</translation>
    </message>
</context>
<context>
    <name>DetailPage</name>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>since %1, while this page is open</source>
        <translation>自 %1 起，在此页面打开期间</translation>
    </message>
</context>
<context>
    <name>DiskPage</name>
    <message>
        <source>%1 free of %2</source>
        <translation>可用 %1，共 %2</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>磁盘</translation>
    </message>
    <message>
        <source>%1 read</source>
        <translation>读取 %1</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>写入 %1</translation>
    </message>
    <message>
        <source>No figures of reading and writing</source>
        <translation>没有读写数据</translation>
    </message>
    <message>
        <source>This computer shows programs no disk of its own, as many containers. What single processes read and write is in columns of the Processes section.</source>
        <translation>与许多容器一样，这台计算机不向程序显示自己的磁盘。各进程的读写量见“进程”部分的列。</translation>
    </message>
    <message>
        <source>Being read…</source>
        <translation>正在读取…</translation>
    </message>
    <message>
        <source>Read and written</source>
        <translation>读取和写入</translation>
    </message>
    <message>
        <source>No volume of a disk is mounted here. The tile shows the space of the root folder.</source>
        <translation>此处没有挂载磁盘卷。磁贴显示根文件夹的空间。</translation>
    </message>
    <message>
        <source>A disk does not answer. It is asked again once it does, while this page is open.</source>
        <translation>有磁盘没有响应。在此页面打开期间，一旦它响应就会再次查询。</translation>
    </message>
</context>
<context>
    <name>DismissButton</name>
    <message>
        <source>Dismiss</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>EndDialog</name>
    <message>
        <source>Processes</source>
        <translation>进程</translation>
    </message>
    <message numerus="yes">
        <source>%1 %n process(es) run below it.</source>
        <translation>
            <numerusform>%1 其下运行着 %n 个进程。</numerusform>
        </translation>
    </message>
    <message>
        <source>Force kill %1?</source>
        <translation>强制结束 %1？</translation>
    </message>
    <message>
        <source>Quit %1?</source>
        <translation>退出 %1？</translation>
    </message>
    <message numerus="yes">
        <source>Force kill %n process(es)?</source>
        <translation>
            <numerusform>强制结束 %n 个进程？</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Quit %n process(es)?</source>
        <translation>
            <numerusform>退出 %n 个进程？</numerusform>
        </translation>
    </message>
    <message>
        <source>They hold %1. They end at once, and what is not saved is lost.</source>
        <translation>它们占用 %1。它们会立即结束，未保存的内容将丢失。</translation>
    </message>
    <message>
        <source>They hold %1. They are asked to end, and may lose what is not saved.</source>
        <translation>它们占用 %1。将请求它们结束，未保存的内容可能丢失。</translation>
    </message>
    <message>
        <source>PID %1 holds %2. It ends at once, and what is not saved is lost.</source>
        <translation>PID %1 占用 %2。它会立即结束，未保存的内容将丢失。</translation>
    </message>
    <message>
        <source>PID %1 holds %2. It is asked to end, and may lose what is not saved.</source>
        <translation>PID %1 占用 %2。将请求它结束，未保存的内容可能丢失。</translation>
    </message>
    <message>
        <source>Force kill</source>
        <translation>强制结束</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Force kill %1</source>
        <translation>强制结束 %1</translation>
    </message>
    <message>
        <source>Quit %1</source>
        <translation>退出 %1</translation>
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
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1m</source>
        <comment>minutes</comment>
        <translation>%1 分</translation>
    </message>
    <message>
        <source>%1h</source>
        <comment>hours</comment>
        <translation>%1 小时</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n 字节</numerusform>
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
            <numerusform>%n 个月前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n week(s) ago</source>
        <translation>
            <numerusform>%n 周前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n day(s) ago</source>
        <translation>
            <numerusform>%n 天前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s) ago</source>
        <translation>
            <numerusform>%n 小时前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s) ago</source>
        <translation>
            <numerusform>%n 分钟前</numerusform>
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
        <translation>刚刚</translation>
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
        <translation>• 已触发 memory_pressure</translation>
    </message>
    <message>
        <source>Freed ~%1</source>
        <translation>已释放约 %1</translation>
    </message>
    <message>
        <source>• stopped</source>
        <translation>• 已停止</translation>
    </message>
</context>
<context>
    <name>FreeRAMSheet</name>
    <message>
        <source>Min idle: %1 min</source>
        <translation>最短空闲：%1 分钟</translation>
    </message>
    <message>
        <source>Min RAM: %1 MB</source>
        <translation>最少内存：%1 MB</translation>
    </message>
    <message>
        <source>Other programs too</source>
        <translation>包括其他程序</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>全不选</translation>
    </message>
    <message>
        <source>Free RAM</source>
        <translation>释放内存</translation>
    </message>
    <message>
        <source>Tick the processes you want to terminate. SIGTERM is sent first; anything still running after 2 s gets SIGKILL. %1 is then nudged with a memory-pressure hint to compress inactive pages.</source>
        <translation>勾选要终止的进程。先发送 SIGTERM；2 秒后仍在运行的会收到 SIGKILL。随后以内存压力提示 %1 压缩不活动的页面。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Lists programs of no known group under a gigabyte as well</source>
        <translation>同时列出未知分组中小于 1 GB 的程序</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>进程</translation>
    </message>
    <message>
        <source>No idle hogs above your thresholds</source>
        <translation>没有超过阈值的空闲大户</translation>
    </message>
    <message>
        <source>Lower the Min idle slider to see lightly-used processes.</source>
        <translation>调低“最短空闲”可查看较少使用的进程。</translation>
    </message>
    <message>
        <source>%1 selected • %2 targeted</source>
        <translation>已选 %1 个 • 目标 %2</translation>
    </message>
    <message>
        <source>Killing…</source>
        <translation>正在结束…</translation>
    </message>
    <message>
        <source>Kill %1 and free RAM</source>
        <translation>结束 %1 个进程并释放内存</translation>
    </message>
    <message>
        <source>Send memory pressure only</source>
        <translation>仅发送内存压力</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Kills nothing more; what still runs is left alone</source>
        <translation>不再强制结束任何进程；仍在运行的保持不变</translation>
    </message>
</context>
<context>
    <name>FreedesktopLoginItem</name>
    <message>
        <source>The program&apos;s own file cannot be found.</source>
        <translation>找不到程序自身的文件。</translation>
    </message>
</context>
<context>
    <name>FreedesktopPlaces</name>
    <message>
        <source>%1 is left alone: a whole file system is mounted there.</source>
        <translation>保留 %1：那里挂载了整个文件系统。</translation>
    </message>
    <message>
        <source>%1 is left alone: it is a link.</source>
        <translation>保留 %1：它是一个链接。</translation>
    </message>
    <message>
        <source>%1 is left alone: it holds more than that, in %2.</source>
        <translation>保留 %1：其中还有更多内容，位于 %2。</translation>
    </message>
    <message>
        <source>%1 is left alone: all programs share it.</source>
        <translation>保留 %1：所有程序共用它。</translation>
    </message>
    <message>
        <source>%1 is left alone: the folder of caches must have nothing to do with %2.</source>
        <translation>保留 %1：缓存文件夹不得与 %2 有任何关系。</translation>
    </message>
</context>
<context>
    <name>FreedesktopTargets</name>
    <message>
        <source>Gradle fetches its packages and its own versions again.</source>
        <translation>Gradle 会重新获取其软件包和自身的各版本。</translation>
    </message>
    <message>
        <source>Old logs of Gradle&apos;s background processes. Gradle writes new ones.</source>
        <translation>Gradle 后台进程的旧日志。Gradle 会写入新的日志。</translation>
    </message>
    <message>
        <source>Maven fetches packages again. Those that were only installed here must be built again.</source>
        <translation>Maven 会重新获取软件包。仅在本地安装的必须重新构建。</translation>
    </message>
    <message>
        <source>Both fetch their packages again.</source>
        <translation>两者都会重新获取各自的软件包。</translation>
    </message>
    <message>
        <source>Cargo unpacks sources again, and fetches repositories again.</source>
        <translation>Cargo 会重新解压源代码并重新获取仓库。</translation>
    </message>
    <message>
        <source>Go compiles packages again.</source>
        <translation>Go 会重新编译软件包。</translation>
    </message>
    <message>
        <source>Toolchains that are not the default. A project may still name one: rustup fetches it again, but not one of your own.</source>
        <translation>非默认的工具链。项目可能仍会指定其中之一：rustup 会重新获取，但您自己的除外。</translation>
    </message>
    <message>
        <source>Yarn and Corepack fetch it again.</source>
        <translation>Yarn 和 Corepack 会重新获取。</translation>
    </message>
    <message>
        <source>Conda fetches packages again. Environments keep theirs, unless they are set to link to this folder.</source>
        <translation>Conda 会重新获取软件包。环境会保留各自的软件包，除非设置为链接到此文件夹。</translation>
    </message>
    <message>
        <source>Poetry fetches its packages again. Environments stay.</source>
        <translation>Poetry 会重新获取其软件包。环境会保留。</translation>
    </message>
    <message>
        <source>pre-commit installs its hooks again.</source>
        <translation>pre-commit 会重新安装其钩子。</translation>
    </message>
    <message>
        <source>Compiled objects. The next builds take longer and fill it again.</source>
        <translation>编译生成的目标文件。接下来的构建会更久，并重新填充缓存。</translation>
    </message>
    <message>
        <source>Files that Bazel has fetched. It fetches them again.</source>
        <translation>Bazel 获取的文件。它会重新获取。</translation>
    </message>
    <message>
        <source>Conan fetches or builds packages again. Recipes that are only here are gone.</source>
        <translation>Conan 会重新获取或构建软件包。仅存于此的配方会丢失。</translation>
    </message>
    <message>
        <source>vcpkg builds its packages again.</source>
        <translation>vcpkg 会重新构建其软件包。</translation>
    </message>
    <message>
        <source>Editors make them again. Settings, open work and history stay.</source>
        <translation>编辑器会重新生成。设置、未完成的工作和历史会保留。</translation>
    </message>
    <message>
        <source>Earlier states of your files. Nothing brings them back.</source>
        <translation>您文件的早期状态。删除后无法恢复。</translation>
    </message>
    <message>
        <source>Logs of coding agents that no agent reads again. Conversations stay.</source>
        <translation>不会再有代理读取的编程代理日志。对话会保留。</translation>
    </message>
    <message>
        <source>Settings of shells for agents that ended long ago. An agent makes its own at its start.</source>
        <translation>早已结束的代理的 shell 设置。代理启动时会生成自己的设置。</translation>
    </message>
    <message>
        <source>Long texts that you pasted. Old prompts in the history refer to them.</source>
        <translation>您粘贴的长文本。历史中的旧提示会引用它们。</translation>
    </message>
    <message>
        <source>Models and data sets. What is public can be fetched again.</source>
        <translation>模型和数据集。公开的内容可以重新获取。</translation>
    </message>
    <message>
        <source>Parts of models, named after them. Those that you made here are gone for good.</source>
        <translation>模型的各部分，以模型命名。您在此创建的将永久丢失。</translation>
    </message>
    <message>
        <source>Models. What is public can be fetched again.</source>
        <translation>模型。公开的内容可以重新获取。</translation>
    </message>
    <message>
        <source>Applications make their caches again.</source>
        <translation>应用会重新生成缓存。</translation>
    </message>
    <message>
        <source>Small pictures of your files. File managers make them again.</source>
        <translation>您文件的小图片。文件管理器会重新生成。</translation>
    </message>
    <message>
        <source>The graphics driver compiles shaders again. Games may stutter at first.</source>
        <translation>显卡驱动会重新编译着色器。游戏起初可能卡顿。</translation>
    </message>
    <message>
        <source>Reports of crashes that are a week old. They only help to find the fault.</source>
        <translation>一周前的崩溃报告。它们只用于查找故障。</translation>
    </message>
    <message>
        <source>Podman fetches or builds images again. Stopped containers go.</source>
        <translation>Podman 会重新获取或构建镜像。已停止的容器会删除。</translation>
    </message>
    <message>
        <source>They are installed already. The system asks for a password.</source>
        <translation>它们已经安装。系统会要求输入密码。</translation>
    </message>
    <message>
        <source>Old messages of the system go, the newest stay. It asks for a password.</source>
        <translation>删除系统的旧消息，保留最新的。会要求输入密码。</translation>
    </message>
</context>
<context>
    <name>GeneralTab</name>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>启动</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>登录时启动</translation>
    </message>
    <message>
        <source>Show floating widget on launch</source>
        <translation>启动时显示悬浮小组件</translation>
    </message>
    <message>
        <source>Show in %1</source>
        <translation>在%1中显示</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Texts, numbers and dates</source>
        <translation>文本、数字和日期</translation>
    </message>
    <message>
        <source>Takes effect at the next start.</source>
        <translation>下次启动时生效。</translation>
    </message>
    <message>
        <source>Couldn&apos;t register: %1</source>
        <translation>无法注册：%1</translation>
    </message>
    <message>
        <source>Couldn&apos;t unregister: %1</source>
        <translation>无法取消注册：%1</translation>
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
        <translation>曲线从下一个数值开始。</translation>
    </message>
</context>
<context>
    <name>GroupHeader</name>
    <message>
        <source>%1 (%2), %3, %4 CPU</source>
        <translation>%1（%2），%3，%4 CPU</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>已展开</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>已折叠</translation>
    </message>
    <message>
        <source>• %1 CPU</source>
        <translation>• %1 CPU</translation>
    </message>
</context>
<context>
    <name>GroupRow</name>
    <message>
        <source>… +%1 more in Processes tab</source>
        <translation>… 另有 %1 个，见“进程”页</translation>
    </message>
</context>
<context>
    <name>HistoryTab</name>
    <message>
        <source>Action history</source>
        <translation>操作历史</translation>
    </message>
    <message>
        <source>No actions logged yet.</source>
        <translation>尚未记录任何操作。</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Force kill</source>
        <translation>强制结束</translation>
    </message>
    <message>
        <source>Clean</source>
        <translation>清理</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>导出 CSV…</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>清空日志</translation>
    </message>
    <message>
        <source>Export CSV</source>
        <translation>导出 CSV</translation>
    </message>
    <message>
        <source>Comma-separated text (*.csv)</source>
        <translation>逗号分隔文本 (*.csv)</translation>
    </message>
    <message>
        <source>Clear action history?</source>
        <translation>清除操作历史？</translation>
    </message>
    <message>
        <source>This deletes ~/Library/Logs/Tavrin/actions.log.</source>
        <translation>这将删除 ~/Library/Logs/Tavrin/actions.log。</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>全部清除</translation>
    </message>
    <message>
        <source>That file is the log itself.</source>
        <translation>该文件就是日志本身。</translation>
    </message>
    <message>
        <source>The log was not exported. Choose another place.</source>
        <translation>日志未能导出。请选择其他位置。</translation>
    </message>
    <message>
        <source>Show all kinds</source>
        <translation>显示所有类型</translation>
    </message>
</context>
<context>
    <name>HistoryTableModel</name>
    <message>
        <source>OK</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
</context>
<context>
    <name>IncidentDialog</name>
    <message>
        <source>%1 more than at first</source>
        <translation>比开始时多 %1</translation>
    </message>
    <message>
        <source>%1 less than at first</source>
        <translation>比开始时少 %1</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详情</translation>
    </message>
    <message>
        <source>From %1 to %2</source>
        <translation>从 %1 到 %2</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>内存</translation>
    </message>
    <message>
        <source>Waited for memory</source>
        <translation>等待内存</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Largest processes then</source>
        <translation>当时最大的进程</translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>Listens on %1</source>
        <translation>监听 %1</translation>
    </message>
    <message>
        <source>Program of the group %1</source>
        <translation>属于“%1”组的程序</translation>
    </message>
    <message>
        <source>Program of no known group</source>
        <translation>不属于任何已知组的程序</translation>
    </message>
    <message>
        <source>%1, %2 ago</source>
        <comment>a point in time, and how long ago</comment>
        <translation>%1，%2前</translation>
    </message>
    <message>
        <source>MCP server %1 for %2</source>
        <translation>%2 的 MCP 服务器 %1</translation>
    </message>
    <message>
        <source>MCP server %1, which nobody uses any more</source>
        <translation>MCP 服务器 %1，已无人使用</translation>
    </message>
    <message>
        <source>Coding agent %1</source>
        <translation>编码代理 %1</translation>
    </message>
    <message>
        <source>MCP server for %1</source>
        <translation>%1 的 MCP 服务器</translation>
    </message>
    <message>
        <source>Dev server of %1</source>
        <translation>%1 的开发服务器</translation>
    </message>
    <message>
        <source>Dev server on %1 of %2</source>
        <translation>%2 在 %1 上的开发服务器</translation>
    </message>
    <message>
        <source>Browser of %1</source>
        <translation>%1 的浏览器</translation>
    </message>
    <message>
        <source>Command of %1</source>
        <translation>%1 的命令</translation>
    </message>
    <message>
        <source>Renderer of %1: a page or an extension</source>
        <translation>%1 的渲染进程：页面或扩展</translation>
    </message>
    <message>
        <source>Graphics process of %1</source>
        <translation>%1 的图形进程</translation>
    </message>
    <message>
        <source>Service process of %1</source>
        <translation>%1 的服务进程</translation>
    </message>
    <message>
        <source>Process that %1 starts others from</source>
        <translation>%1 用来启动其他进程的进程</translation>
    </message>
    <message>
        <source>Content process of %1: pages or extensions</source>
        <translation>%1 的内容进程：页面或扩展</translation>
    </message>
</context>
<context>
    <name>InspectorPanel</name>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Force kill</source>
        <translation>强制结束</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>内存</translation>
    </message>
    <message>
        <source>Show files</source>
        <translation>显示文件</translation>
    </message>
    <message>
        <source>Show environment</source>
        <translation>显示环境</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详情</translation>
    </message>
    <message>
        <source>Where it is from</source>
        <translation>来源</translation>
    </message>
    <message>
        <source>PID</source>
        <translation>PID</translation>
    </message>
    <message>
        <source>User</source>
        <translation>用户</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>启动时间</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>线程</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>会话</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Control group</source>
        <translation>控制组</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy the command</source>
        <translation>复制命令</translation>
    </message>
    <message>
        <source>Started from</source>
        <translation>启动自</translation>
    </message>
    <message>
        <source>Its parents are not listed.</source>
        <translation>其父进程未列出。</translation>
    </message>
    <message>
        <source>Close the details</source>
        <translation>关闭详细信息</translation>
    </message>
    <message>
        <source>Choose a process in the table.</source>
        <translation>请在表格中选择一个进程。</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Environment</source>
        <translation>环境</translation>
    </message>
    <message>
        <source>It has ended.</source>
        <translation>它已结束。</translation>
    </message>
    <message>
        <source>Quit %1</source>
        <translation>退出 %1</translation>
    </message>
    <message>
        <source>Force kill %1</source>
        <translation>强制结束 %1</translation>
    </message>
    <message numerus="yes">
        <source>%n open file(s)</source>
        <translation>
            <numerusform>%n 个打开的文件</numerusform>
        </translation>
    </message>
    <message>
        <source>listens on %1</source>
        <translation>监听 %1</translation>
    </message>
    <message>
        <source>Unknown: the system tells it only of your own processes.</source>
        <translation>未知：系统只提供您自己进程的信息。</translation>
    </message>
    <message>
        <source>Being read…</source>
        <translation>正在读取…</translation>
    </message>
    <message>
        <source>Open files</source>
        <translation>打开的文件</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>仅列出前 %1 个。</translation>
    </message>
    <message>
        <source>The system refuses it</source>
        <translation>系统拒绝</translation>
    </message>
    <message>
        <source>hidden, as it may be a secret</source>
        <translation>已隐藏，可能是机密</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>为空。</translation>
    </message>
    <message>
        <source>Unknown: it has ended.</source>
        <translation>未知：它已结束。</translation>
    </message>
</context>
<context>
    <name>LeaveOutOffer</name>
    <message>
        <source>and %1 more</source>
        <translation>以及另外 %1 个</translation>
    </message>
    <message>
        <source>You left this out twice. The Cleanup settings have the list.</source>
        <translation>您已两次排除此项。列表位于清理设置中。</translation>
    </message>
    <message>
        <source>Never clean this?</source>
        <translation>永不清理此项？</translation>
    </message>
    <message>
        <source>Never Clean</source>
        <translation>永不清理</translation>
    </message>
</context>
<context>
    <name>LeftoverTexts</name>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>in use by %1</source>
        <translation>正被 %1 使用</translation>
    </message>
    <message>
        <source>uncommitted changes</source>
        <translation>未提交的更改</translation>
    </message>
    <message numerus="yes">
        <source>Stopped: removed %n folder(s), freed ~%1</source>
        <translation>
            <numerusform>已停止：删除了 %n 个文件夹，释放约 %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Removed %n folder(s), freed ~%1</source>
        <translation>
            <numerusform>已删除 %n 个文件夹，释放约 %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n project(s) found</source>
        <translation>
            <numerusform>找到 %n 个项目</numerusform>
        </translation>
    </message>
    <message>
        <source>Looking in %1</source>
        <translation>正在查找 %1</translation>
    </message>
    <message>
        <source>Removing %1</source>
        <translation>正在移除 %1</translation>
    </message>
</context>
<context>
    <name>MCPCard</name>
    <message>
        <source>Claude Code &amp; MCP</source>
        <translation>Claude Code 与 MCP</translation>
    </message>
    <message>
        <source>Loaded servers + orphan detection</source>
        <translation>已加载的服务器与孤立检测</translation>
    </message>
    <message>
        <source>Configured</source>
        <translation>已配置</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>运行中</translation>
    </message>
    <message>
        <source>Orphans</source>
        <translation>孤立</translation>
    </message>
    <message>
        <source>Orphan RAM</source>
        <translation>孤立内存</translation>
    </message>
    <message>
        <source>Kill orphans</source>
        <translation>结束孤立进程</translation>
    </message>
    <message>
        <source>Running servers</source>
        <translation>运行中的服务器</translation>
    </message>
    <message>
        <source>No ~/.claude/mcp.json found — nothing configured globally.</source>
        <translation>未找到 ~/.claude/mcp.json — 没有全局配置。</translation>
    </message>
    <message>
        <source>A configuration file is being read. Its servers are counted after that.</source>
        <translation>正在读取配置文件。之后会统计其中的服务器。</translation>
    </message>
</context>
<context>
    <name>MCPInspector</name>
    <message>
        <source>(%1 or gone)</source>
        <translation>（%1 或已消失）</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Close Window</source>
        <translation>关闭窗口</translation>
    </message>
    <message>
        <source>Show or Hide Sidebar</source>
        <translation>显示或隐藏侧边栏</translation>
    </message>
</context>
<context>
    <name>MemoryCard</name>
    <message>
        <source>Memory</source>
        <translation>内存</translation>
    </message>
    <message>
        <source>Free RAM without quitting your work</source>
        <translation>释放内存而不中断您的工作</translation>
    </message>
    <message>
        <source>Pressure nudge</source>
        <translation>内存压力</translation>
    </message>
    <message>
        <source>Free RAM</source>
        <translation>释放内存</translation>
    </message>
    <message>
        <source>Pressure: free + compress. Deep purge prompts admin and flushes the unified buffer cache (heavier).</source>
        <translation>内存压力：释放并压缩。深度清除需要管理员权限，会清空统一缓冲区缓存（开销较大）。</translation>
    </message>
    <message>
        <source>Purging…</source>
        <translation>正在清除…</translation>
    </message>
    <message>
        <source>Deep purge (admin)</source>
        <translation>深度清除（管理员）</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Stop purging</source>
        <translation>停止清除</translation>
    </message>
</context>
<context>
    <name>MemoryKindsBar</name>
    <message>
        <source>Own</source>
        <translation>独占</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>共享</translation>
    </message>
    <message>
        <source>In memory, kinds unknown</source>
        <translation>在内存中，类型未知</translation>
    </message>
    <message>
        <source>In swap</source>
        <translation>在交换空间中</translation>
    </message>
</context>
<context>
    <name>MemoryLineUp</name>
    <message>
        <source>Groups %1</source>
        <translation>分组 %1</translation>
    </message>
    <message>
        <source>of these, caches of files −%1</source>
        <translation>其中文件缓存 −%1</translation>
    </message>
    <message>
        <source>Other users %1</source>
        <translation>其他用户 %1</translation>
    </message>
    <message>
        <source>Kernel %1</source>
        <translation>内核 %1</translation>
    </message>
    <message>
        <source>Shared memory and the rest %1</source>
        <translation>共享内存及其余 %1</translation>
    </message>
    <message>
        <source>Used %1</source>
        <translation>已用 %1</translation>
    </message>
</context>
<context>
    <name>MemoryPage</name>
    <message>
        <source>Memory</source>
        <translation>内存</translation>
    </message>
    <message>
        <source>In use</source>
        <translation>已用</translation>
    </message>
    <message>
        <source>Swap in use</source>
        <translation>已用交换空间</translation>
    </message>
    <message>
        <source>Time that programs waited for memory</source>
        <translation>程序等待内存的时间</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>内核</translation>
    </message>
    <message>
        <source>Compressed</source>
        <translation>已压缩</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Some programs</source>
        <translation>部分程序</translation>
    </message>
    <message>
        <source>All programs</source>
        <translation>所有程序</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>分组</translation>
    </message>
    <message>
        <source>File cache</source>
        <translation>文件缓存</translation>
    </message>
</context>
<context>
    <name>MenuBarController</name>
    <message>
        <source>CPU %1% • RAM %2%</source>
        <translation>CPU %1% • 内存 %2%</translation>
    </message>
    <message>
        <source>CPU %1%</source>
        <translation>CPU %1%</translation>
    </message>
    <message>
        <source>RAM %1%</source>
        <translation>内存 %1%</translation>
    </message>
</context>
<context>
    <name>MenuBarPanel</name>
    <message>
        <source>Top 5 by RAM</source>
        <translation>内存占用前 5 名</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>提醒</translation>
    </message>
    <message>
        <source>Toggle floating widget</source>
        <translation>显示或隐藏悬浮小组件</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>RAM</source>
        <translation>内存</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>磁盘</translation>
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
        <translation>内存</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>磁盘</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>可用 %1</translation>
    </message>
    <message>
        <source>Thermal</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Swap %1</source>
        <translation>交换 %1</translation>
    </message>
    <message>
        <source>No swap</source>
        <translation>无交换空间</translation>
    </message>
    <message>
        <source>%1 • pressure %2</source>
        <comment>used memory; a share of time</comment>
        <translation>%1 • 压力 %2</translation>
    </message>
    <message>
        <source>Programs waited %1 of the last ten seconds for memory, all of them %2</source>
        <translation>过去十秒中，程序有 %1 的时间在等待内存，全部同时等待占 %2</translation>
    </message>
    <message>
        <source>Programs waited %1 of the last ten seconds for disks, all of them %2</source>
        <translation>过去十秒中，程序有 %1 的时间在等待磁盘，全部同时等待占 %2</translation>
    </message>
</context>
<context>
    <name>NothingFound</name>
    <message>
        <source>Clear the search</source>
        <translation>清除搜索</translation>
    </message>
    <message>
        <source>Show all groups</source>
        <translation>显示所有组</translation>
    </message>
    <message>
        <source>Show all sizes</source>
        <translation>显示所有大小</translation>
    </message>
    <message>
        <source>Clear all filters</source>
        <translation>清除所有筛选</translation>
    </message>
    <message>
        <source>No processes match</source>
        <translation>没有匹配的进程</translation>
    </message>
    <message numerus="yes">
        <source>Min RAM of %1 MB hides %n more.</source>
        <translation>
            <numerusform>最小内存 %1 MB 另外隐藏了 %n 个。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The group %1 hides %n more.</source>
        <translation>
            <numerusform>“%1”组另外隐藏了 %n 个。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The search hides %n more.</source>
        <translation>
            <numerusform>搜索另外隐藏了 %n 个。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The filters together hide %n process(es).</source>
        <translation>
            <numerusform>这些筛选共隐藏了 %n 个进程。</numerusform>
        </translation>
    </message>
    <message>
        <source>Change the search, the group or Min RAM to see more.</source>
        <translation>更改搜索、组或最小内存以查看更多。</translation>
    </message>
    <message>
        <source>No processes</source>
        <translation>没有进程</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>Dismiss</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>NotificationPlan</name>
    <message numerus="yes">
        <source>%n large session(s)</source>
        <translation>
            <numerusform>%n 个大型会话</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n idle agent(s)</source>
        <translation>
            <numerusform>%n 个空闲的代理</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>另外 %1 个</translation>
    </message>
</context>
<context>
    <name>NukePreview</name>
    <message>
        <source>Quit “%1” and all %2 helpers?</source>
        <translation>退出“%1”及其全部 %2 个辅助进程？</translation>
    </message>
    <message>
        <source>Kill all %1 “%2” processes?</source>
        <translation>结束全部 %1 个“%2”进程？</translation>
    </message>
    <message>
        <source>Tells %1 to quit cleanly — closes all %2 child processes in one sweep, no per-tab pop-ups. Frees ≈%3.</source>
        <translation>通知 %1 正常退出 — 一次关闭全部 %2 个子进程，不会逐个标签页弹窗。释放约 %3。</translation>
    </message>
    <message>
        <source>Sends SIGTERM to all %1 PIDs. Use sparingly — unsaved work in those processes may be lost.</source>
        <translation>向全部 %1 个 PID 发送 SIGTERM。请谨慎使用 — 这些进程中未保存的工作可能丢失。</translation>
    </message>
    <message>
        <source>PIDs: %1</source>
        <translation>PID：%1</translation>
    </message>
    <message>
        <source>%1 of its files stay in the cache.</source>
        <translation>其文件中有 %1 留在缓存中。</translation>
    </message>
    <message>
        <source>What runs in its terminals ends too (≈%1): %2.</source>
        <translation>在其终端中运行的程序也会结束（约 %1）：%2。</translation>
    </message>
    <message>
        <source>Quit %1 (≈%2)</source>
        <translation>退出 %1（约 %2）</translation>
    </message>
    <message>
        <source>Force-quit %1 (no save prompt)</source>
        <translation>强制退出 %1（不提示保存）</translation>
    </message>
    <message>
        <source>Kill %1 (≈%2)</source>
        <translation>结束 %1（约 %2）</translation>
    </message>
    <message>
        <source>Couldn&apos;t tell %1 to quit (it may not be scriptable). Try the force variant.</source>
        <translation>无法通知 %1 退出（它可能不支持脚本）。请尝试强制方式。</translation>
    </message>
    <message>
        <source>%1 quit cleanly — %2 helpers closed (≈%3 freed)</source>
        <translation>%1 已正常退出 — 关闭了 %2 个辅助进程（释放约 %3）</translation>
    </message>
    <message>
        <source>Killed %1/%2 “%3” processes (≈%4 targeted)</source>
        <translation>已结束 %1/%2 个“%3”进程（目标约 %4）</translation>
    </message>
</context>
<context>
    <name>NullPlatform</name>
    <message>
        <source>Nothing can be started at login here.</source>
        <translation>此处无法设置登录时启动。</translation>
    </message>
</context>
<context>
    <name>OptimizeView</name>
    <message>
        <source>Optimize</source>
        <translation>优化</translation>
    </message>
    <message>
        <source>Sent memory_pressure -l warn</source>
        <translation>已发送 memory_pressure -l warn</translation>
    </message>
    <message>
        <source>memory_pressure failed</source>
        <translation>memory_pressure 失败</translation>
    </message>
    <message>
        <source>Inactive memory purged</source>
        <translation>已清除不活动的内存</translation>
    </message>
    <message>
        <source>Purge cancelled or failed</source>
        <translation>清除已取消或失败</translation>
    </message>
    <message>
        <source>Killed %1 orphan MCP server(s)</source>
        <translation>已结束 %1 个孤立的 MCP 服务器</translation>
    </message>
    <message>
        <source>No orphan MCPs to kill</source>
        <translation>没有孤立的 MCP 服务器</translation>
    </message>
</context>
<context>
    <name>OutcomeList</name>
    <message>
        <source>Left alone: it belongs to something else</source>
        <translation>已保留：它属于其他程序</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>已退出</translation>
    </message>
    <message>
        <source>Force-killed</source>
        <translation>已强制结束</translation>
    </message>
    <message>
        <source>Ignored SIGTERM/KILL</source>
        <translation>忽略了 SIGTERM/KILL</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>权限不足</translation>
    </message>
    <message>
        <source>Still running</source>
        <translation>仍在运行</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>进程</translation>
    </message>
</context>
<context>
    <name>OverviewView</name>
    <message>
        <source>Overview</source>
        <translation>概览</translation>
    </message>
    <message>
        <source>Free RAM</source>
        <translation>释放内存</translation>
    </message>
    <message>
        <source>Floating Widget</source>
        <translation>悬浮小组件</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>实时</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>分组</translation>
    </message>
</context>
<context>
    <name>PlaceFinder</name>
    <message>
        <source>%1 does not answer.</source>
        <translation>%1 没有响应。</translation>
    </message>
</context>
<context>
    <name>PresetTable</name>
    <message>
        <source>Quick Kill presets</source>
        <translation>快速结束预设</translation>
    </message>
    <message>
        <source>No presets. Add one, or reset to the defaults.</source>
        <translation>没有预设。请添加一个，或恢复默认设置。</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
</context>
<context>
    <name>PresetTableModel</name>
    <message>
        <source>%1m</source>
        <translation>%1 分</translation>
    </message>
    <message>
        <source>%1MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>强制</translation>
    </message>
    <message>
        <source>No force</source>
        <translation>不强制</translation>
    </message>
</context>
<context>
    <name>PresetTile</name>
    <message>
        <source>%1, %2, %3 matching</source>
        <translation>%1，%2，匹配 %3 个</translation>
    </message>
</context>
<context>
    <name>ProcessActions</name>
    <message>
        <source>No process of the session could be paused.</source>
        <translation>会话的进程均无法暂停。</translation>
    </message>
    <message>
        <source>The session has ended meanwhile.</source>
        <translation>会话在此期间已结束。</translation>
    </message>
</context>
<context>
    <name>ProcessControls</name>
    <message>
        <source>Search name or path</source>
        <translation>搜索名称或路径</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>分组</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>排序</translation>
    </message>
    <message>
        <source>Min RAM %1 MB</source>
        <translation>最少内存 %1 MB</translation>
    </message>
    <message>
        <source>Group duplicates</source>
        <translation>合并同名进程</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Tree</source>
        <translation>树</translation>
    </message>
    <message>
        <source>Words of a name, a path or arguments, a PID, or :8080 for who listens on that port</source>
        <translation>名称、路径或参数中的词，PID，或 :8080 查找监听该端口的进程</translation>
    </message>
    <message>
        <source>Children below their parents</source>
        <translation>子进程位于父进程之下</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详情</translation>
    </message>
    <message>
        <source>Shows the chosen process in a panel beside the table</source>
        <translation>在表格旁的面板中显示所选进程</translation>
    </message>
</context>
<context>
    <name>ProcessMenu</name>
    <message>
        <source>Quit %1…</source>
        <translation>退出 %1…</translation>
    </message>
    <message>
        <source>Show in group</source>
        <translation>显示在分组</translation>
    </message>
    <message>
        <source>As detected</source>
        <translation>按检测结果</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详情</translation>
    </message>
    <message>
        <source>Quit…</source>
        <translation>退出…</translation>
    </message>
    <message numerus="yes">
        <source>Quit %n row(s)…</source>
        <translation>
            <numerusform>退出 %n 行…</numerusform>
        </translation>
    </message>
    <message>
        <source>Force kill…</source>
        <translation>强制结束…</translation>
    </message>
    <message numerus="yes">
        <source>Force kill %n row(s)…</source>
        <translation>
            <numerusform>强制结束 %n 行…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProcessRow</name>
    <message>
        <source>Quit (SIGTERM)</source>
        <translation>退出 (SIGTERM)</translation>
    </message>
    <message>
        <source>Force kill (SIGKILL)</source>
        <translation>强制结束 (SIGKILL)</translation>
    </message>
    <message>
        <source>%1 %2, CPU %3, memory %4</source>
        <translation>%1 %2，CPU %3，内存 %4</translation>
    </message>
</context>
<context>
    <name>ProcessRowDelegate</name>
    <message>
        <source>%1 Its menu can end it.</source>
        <translation>%1 可通过其菜单结束。</translation>
    </message>
</context>
<context>
    <name>ProcessTableModel</name>
    <message>
        <source>Force kill one</source>
        <translation>强制结束此进程</translation>
    </message>
    <message>
        <source>Quit all %1</source>
        <translation>退出全部 %1 个</translation>
    </message>
    <message>
        <source>Quit one</source>
        <translation>退出此进程</translation>
    </message>
    <message>
        <source>Nuke all %1 (with confirm)</source>
        <translation>清除全部 %1 个（需确认）</translation>
    </message>
    <message>
        <source>Nuke all %1 “%2” processes</source>
        <translation>清除全部 %1 个“%2”进程</translation>
    </message>
    <message>
        <source>%1, row %2 of %3</source>
        <translation>%1，第 %2 行，共 %3 行</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>level %1</source>
        <translation>第 %1 级</translation>
    </message>
    <message>
        <source>folded</source>
        <translation>已折叠</translation>
    </message>
    <message>
        <source>open</source>
        <translation>已展开</translation>
    </message>
    <message>
        <source>ended</source>
        <translation>已结束</translation>
    </message>
    <message>
        <source>asked to end</source>
        <translation>已请求结束</translation>
    </message>
</context>
<context>
    <name>ProcessTableView</name>
    <message>
        <source>Processes</source>
        <translation>进程</translation>
    </message>
    <message>
        <source>Hide %1</source>
        <translation>隐藏 %1</translation>
    </message>
    <message>
        <source>Move column</source>
        <translation>移动列</translation>
    </message>
    <message>
        <source>Reset columns</source>
        <translation>重置列</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>左移</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>右移</translation>
    </message>
</context>
<context>
    <name>ProcessesView</name>
    <message numerus="yes">
        <source>%1 of %n process(es)</source>
        <translation>
            <numerusform>%1 / %n 个进程</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 names of %n process(es)</source>
        <translation>
            <numerusform>%1 个名称，共 %n 个进程</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. The order is held while a row is in use; F5 sorts anew.</source>
        <translation>%1。使用某行期间顺序保持不变；按 F5 重新排序。</translation>
    </message>
    <message>
        <source>%1, as they were when power became low.</source>
        <translation>%1，为进入低电量前的状态。</translation>
    </message>
</context>
<context>
    <name>ProjectLeftovers</name>
    <message>
        <source>cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>it did not finish</source>
        <translation>未能完成</translation>
    </message>
    <message>
        <source>a program that is unknown</source>
        <translation>一个未知的程序</translation>
    </message>
    <message>
        <source>something in it is new, or is on the list of what is never cleaned</source>
        <translation>其中有新内容，或有“永不清理”列表中的内容</translation>
    </message>
    <message>
        <source>in use by %1</source>
        <translation>正被 %1 使用</translation>
    </message>
</context>
<context>
    <name>ProjectLeftoversSheet</name>
    <message>
        <source>Add folder…</source>
        <translation>添加文件夹…</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>主文件夹</translation>
    </message>
    <message>
        <source>Search projects</source>
        <translation>搜索项目</translation>
    </message>
    <message>
        <source>Search again</source>
        <translation>重新搜索</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Project leftovers</source>
        <translation>项目残留</translation>
    </message>
    <message>
        <source>Folders that builds and installations have left. The project&apos;s own tools make them again, which takes time and perhaps the network.</source>
        <translation>构建和安装留下的文件夹。项目自身的工具会重新生成它们，这需要时间，可能还需要网络。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>上次使用</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>未找到任何内容</translation>
    </message>
    <message>
        <source>Looking for projects…</source>
        <translation>正在查找项目…</translation>
    </message>
    <message>
        <source>Stop searching or removing</source>
        <translation>停止搜索或删除</translation>
    </message>
    <message>
        <source>Look for projects in</source>
        <translation>在此查找项目</translation>
    </message>
    <message>
        <source>Looks in the home folder, without hidden folders</source>
        <translation>在主文件夹中查找，不含隐藏文件夹</translation>
    </message>
    <message>
        <source>Looks in %1</source>
        <translation>在 %1 中查找</translation>
    </message>
    <message>
        <source>and %1 more: search to see them</source>
        <translation>以及另外 %1 个：搜索即可查看</translation>
    </message>
    <message>
        <source>the search (%1)</source>
        <translation>搜索（%1）</translation>
    </message>
    <message>
        <source>Not finished: %1</source>
        <translation>未完成：%1</translation>
    </message>
    <message>
        <source>Remove…</source>
        <translation>删除…</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n folder(s) (%1)…</source>
        <translation>
            <numerusform>删除 %n 个文件夹（%1）…</numerusform>
        </translation>
    </message>
    <message>
        <source>What goes</source>
        <translation>将删除的内容</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>以及另外 %1 个</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n folder(s)?</source>
        <translation>
            <numerusform>删除 %n 个文件夹？</numerusform>
        </translation>
    </message>
    <message>
        <source>They are gone for good, with all that is in them. Sources stay.</source>
        <translation>它们将连同全部内容永久删除。源代码会保留。</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>删除 %1</translation>
    </message>
    <message>
        <source>No project here has anything left by a build. “Add folder…” looks in other places too.</source>
        <translation>此处没有项目留有构建残留。“添加文件夹…”可在其他位置查找。</translation>
    </message>
    <message>
        <source>“Stop” ends the search and keeps what it has found.</source>
        <translation>“停止”会结束搜索并保留已找到的内容。</translation>
    </message>
    <message>
        <source>No projects match</source>
        <translation>没有匹配的项目</translation>
    </message>
    <message>
        <source>The search looks in the path, the folders and the note of each project.</source>
        <translation>搜索范围包括每个项目的路径、文件夹和备注。</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>清除搜索</translation>
    </message>
    <message>
        <source>The search did not finish</source>
        <translation>搜索未完成</translation>
    </message>
</context>
<context>
    <name>ProtectedProcesses</name>
    <message>
        <source>It is the first process of this system, which ends with it.</source>
        <translation>它是本系统的第一个进程，系统会随之结束。</translation>
    </message>
    <message>
        <source>It draws the screen: every window closes, and what is not saved in them is lost.</source>
        <translation>它负责绘制屏幕：所有窗口都会关闭，其中未保存的内容将丢失。</translation>
    </message>
    <message>
        <source>It holds your login: you are logged out, and what is not saved is lost.</source>
        <translation>它维持您的登录：您将被注销，未保存的内容将丢失。</translation>
    </message>
    <message>
        <source>It runs the services of your login, such as sound and the message bus, and much of the desktop. They end with it.</source>
        <translation>它运行您登录会话的服务（如声音和消息总线）以及桌面的大部分。它们会随之结束。</translation>
    </message>
    <message>
        <source>Tavrin was started from it and may end with it, as may everything else that was.</source>
        <translation>Tavrin 由它启动，可能随之结束，由它启动的其他程序也是如此。</translation>
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
        <translation>名称</translation>
    </message>
    <message>
        <source>Process name pattern (substring match)</source>
        <translation>进程名称模式（子串匹配）</translation>
    </message>
    <message>
        <source>Min idle minutes</source>
        <translation>最短空闲分钟数</translation>
    </message>
    <message>
        <source>Min RAM %1 MB</source>
        <translation>最少内存 %1 MB</translation>
    </message>
    <message>
        <source>Use SIGKILL (force)</source>
        <translation>使用 SIGKILL（强制）</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>QuickKillPreset</name>
    <message>
        <source>pattern: %1</source>
        <translation>模式：%1</translation>
    </message>
    <message>
        <source>idle≥%1m</source>
        <translation>空闲≥%1 分</translation>
    </message>
    <message>
        <source>RAM≥%1MB</source>
        <translation>内存≥%1 MB</translation>
    </message>
    <message>
        <source>force</source>
        <translation>强制</translation>
    </message>
    <message>
        <source>%1: nothing matched</source>
        <translation>%1：没有匹配项</translation>
    </message>
    <message>
        <source>%1: killed %2/%3</source>
        <translation>%1：已结束 %2/%3</translation>
    </message>
</context>
<context>
    <name>QuickKillsCard</name>
    <message>
        <source>Quick Kills</source>
        <translation>快速结束</translation>
    </message>
    <message>
        <source>Preset purges for common RAM hogs</source>
        <translation>针对常见内存大户的预设</translation>
    </message>
    <message>
        <source>No presets. The settings add some under Quick Kills, or bring the built-in ones back.</source>
        <translation>没有预设。可在设置的“快速结束”中添加，或恢复内置预设。</translation>
    </message>
</context>
<context>
    <name>QuickKillsTab</name>
    <message>
        <source>Quick Kills</source>
        <translation>快速结束</translation>
    </message>
    <message>
        <source>Custom Quick Kill presets</source>
        <translation>自定义快速结束预设</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Reset to defaults</source>
        <translation>恢复默认设置</translation>
    </message>
    <message>
        <source>New preset</source>
        <translation>新建预设</translation>
    </message>
    <message>
        <source>Edit preset</source>
        <translation>编辑预设</translation>
    </message>
</context>
<context>
    <name>Remains</name>
    <message>
        <source>Left by %1</source>
        <translation>%1 遗留</translation>
    </message>
    <message numerus="yes">
        <source>%1 runs %n time(s) under %2</source>
        <translation>
            <numerusform>%1 在 %2 下运行了 %n 次</numerusform>
        </translation>
    </message>
    <message>
        <source>ended %1: %2</source>
        <translation>结束于 %1：%2</translation>
    </message>
    <message numerus="yes">
        <source>%n older one(s)</source>
        <translation>
            <numerusform>%n 个较旧的</numerusform>
        </translation>
    </message>
    <message>
        <source>End left-overs</source>
        <translation>结束遗留进程</translation>
    </message>
    <message>
        <source>End duplicates</source>
        <translation>结束重复进程</translation>
    </message>
</context>
<context>
    <name>RemainsHeader</name>
    <message>
        <source>Expanded</source>
        <translation>已展开</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>已折叠</translation>
    </message>
</context>
<context>
    <name>ReturnTexts</name>
    <message>
        <source>≤ %1 will come back</source>
        <translation>将释放 ≤ %1</translation>
    </message>
    <message>
        <source>≈ %1 will come back</source>
        <translation>将释放 ≈ %1</translation>
    </message>
    <message>
        <source>Promised: %1 in memory, %2 in swap. Came back: %3 in memory, %4 in swap.</source>
        <translation>预计：内存 %1，交换 %2。实际释放：内存 %3，交换 %4。</translation>
    </message>
</context>
<context>
    <name>RootView</name>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>栏目</translation>
    </message>
    <message>
        <source>Hide sidebar</source>
        <translation>隐藏侧边栏</translation>
    </message>
    <message>
        <source>Show sidebar</source>
        <translation>显示侧边栏</translation>
    </message>
</context>
<context>
    <name>RowButton</name>
    <message>
        <source>%1: %2</source>
        <comment>an action, and what it is about</comment>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>RulesEngine</name>
    <message>
        <source>Free RAM low</source>
        <translation>可用内存不足</translation>
    </message>
    <message>
        <source>Only %1 GB free — consider quitting top hogs or cleaning caches.</source>
        <translation>仅剩 %1 GB 可用 — 请考虑退出占用最多的程序或清理缓存。</translation>
    </message>
    <message>
        <source>RAM getting tight</source>
        <translation>内存趋紧</translation>
    </message>
    <message>
        <source>%1 GB free.</source>
        <translation>可用 %1 GB。</translation>
    </message>
    <message>
        <source>Programs wait for memory</source>
        <translation>有程序在等待内存</translation>
    </message>
    <message>
        <source>%1 of the last ten seconds. Free RAM, or quit what grows.</source>
        <translation>过去十秒的 %1。请释放内存，或退出正在增长的程序。</translation>
    </message>
    <message>
        <source>Memory full in about %1 min</source>
        <translation>内存约 %1 分钟后耗尽</translation>
    </message>
    <message>
        <source>Memory full in about %1 min — %2 grow %3/min</source>
        <translation>内存约 %1 分钟后耗尽 — %2 每分钟增长 %3</translation>
    </message>
    <message>
        <source>Memory full in about %1 min — %2 grows %3/min</source>
        <translation>内存约 %1 分钟后耗尽 — %2 每分钟增长 %3</translation>
    </message>
    <message>
        <source>%1 are left, with swap.</source>
        <translation>还剩 %1（含交换空间）。</translation>
    </message>
    <message>
        <source>The kernel</source>
        <translation>内核</translation>
    </message>
    <message>
        <source>%1 ended %2 at %3 because memory ran out</source>
        <translation>因内存耗尽，%1于 %3 结束了 %2</translation>
    </message>
    <message>
        <source>%1 ended %2 (PID %3%4) at %5 because memory ran out</source>
        <translation>因内存耗尽，%1于 %5 结束了 %2（PID %3%4）</translation>
    </message>
    <message>
        <source>Judged by what vanished then: the system&apos;s record is not readable.</source>
        <translation>根据当时消失的进程判断：无法读取系统日志。</translation>
    </message>
    <message>
        <source>CPU saturated</source>
        <translation>CPU 饱和</translation>
    </message>
    <message>
        <source>%1 total — top: %2</source>
        <translation>共 %1 — 最高：%2</translation>
    </message>
    <message>
        <source>%1 is running hot (%2)</source>
        <translation>%1温度过高（%2）</translation>
    </message>
    <message>
        <source>%1 is throttling — reduce parallel agentic work or quit Docker/ollama.</source>
        <translation>%1 正在降频 — 请减少并行的代理工作，或退出 Docker/ollama。</translation>
    </message>
    <message>
        <source>Heavy swap usage</source>
        <translation>大量使用交换空间</translation>
    </message>
    <message>
        <source>%1 GB swapped — system will feel sluggish.</source>
        <translation>已交换 %1 GB — 系统会变得迟缓。</translation>
    </message>
    <message>
        <source>Idle agent — %1</source>
        <translation>空闲的代理 — %1</translation>
    </message>
    <message>
        <source>Idle agent — %1 in %2</source>
        <translation>空闲的代理 — %2 中的 %1</translation>
    </message>
    <message>
        <source>Idle %1 min, %2 RAM. Quit?</source>
        <translation>空闲 %1 分钟，内存 %2。退出？</translation>
    </message>
    <message>
        <source>Idle %1 min, %2 RAM.</source>
        <translation>空闲 %1 分钟，内存 %2。</translation>
    </message>
    <message>
        <source>Browsers using %1</source>
        <translation>浏览器占用 %1</translation>
    </message>
    <message>
        <source>That&apos;s %1 of total RAM. Closing idle tabs frees the most memory fastest.</source>
        <translation>占总内存的 %1。关闭空闲标签页能最快释放最多内存。</translation>
    </message>
    <message>
        <source>Caches reclaimable: %1</source>
        <translation>可清理的缓存：%1</translation>
    </message>
    <message>
        <source>%1 holds %2</source>
        <translation>%1 占用 %2</translation>
    </message>
</context>
<context>
    <name>SamplingTab</name>
    <message>
        <source>Sampling</source>
        <translation>采样</translation>
    </message>
    <message>
        <source>Sampling cadence</source>
        <translation>采样频率</translation>
    </message>
    <message>
        <source>Poll interval</source>
        <translation>采样间隔</translation>
    </message>
    <message>
        <source>%1s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>History retention</source>
        <translation>历史保留时长</translation>
    </message>
    <message>
        <source>Keeps %1 samples for the Overview sparklines.</source>
        <translation>为概览曲线保留 %1 个样本。</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>电源</translation>
    </message>
    <message>
        <source>Pause sampling on Low Power Mode</source>
        <translation>低电量模式下暂停采样</translation>
    </message>
</context>
<context>
    <name>SamplingTexts</name>
    <message>
        <source>Processes are not read while power is low. “Pause sampling on Low Power Mode” in the settings, under Sampling, changes that.</source>
        <translation>低电量时不读取进程。可在设置的“采样”中更改“低电量模式下暂停采样”。</translation>
    </message>
    <message>
        <source>The system lists no processes now. F5 reads them again.</source>
        <translation>系统目前没有列出进程。按 F5 重新读取。</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Clear search</source>
        <translation>清除搜索</translation>
    </message>
</context>
<context>
    <name>ServerRow</name>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Orphan %1, PID %2, parent: %3, %4</source>
        <translation>孤立 %1，PID %2，父进程：%3，%4</translation>
    </message>
    <message>
        <source>Running %1, PID %2, parent: %3, %4</source>
        <translation>运行中 %1，PID %2，父进程：%3，%4</translation>
    </message>
    <message>
        <source>parent: %1</source>
        <translation>父进程：%1</translation>
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
        <translation>%1，已 %2 小时未使用 CPU</translation>
    </message>
    <message>
        <source>%1, no CPU for %2 min</source>
        <translation>%1，已 %2 分钟未使用 CPU</translation>
    </message>
    <message>
        <source>in use by %1</source>
        <translation>正被 %1 使用</translation>
    </message>
    <message>
        <source>in use by %1 in %2</source>
        <translation>正被 %2 中的 %1 使用</translation>
    </message>
    <message>
        <source>runs in the container %1</source>
        <translation>运行在容器 %1 中</translation>
    </message>
    <message>
        <source>run by the service manager as %1</source>
        <translation>由服务管理器作为 %1 运行</translation>
    </message>
    <message>
        <source>orphan: no agent or editor above it</source>
        <translation>孤立：上层没有代理或编辑器</translation>
    </message>
    <message>
        <source>orphan: its host %1 ended at %2</source>
        <translation>孤立：其宿主 %1 已于 %2 结束</translation>
    </message>
    <message>
        <source>orphan: no longer below its host %1</source>
        <translation>孤立：不再位于其宿主 %1 之下</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>%1 in %2</source>
        <translation>%2 中的 %1</translation>
    </message>
</context>
<context>
    <name>SessionActions</name>
    <message>
        <source>End %1?</source>
        <translation>结束 %1？</translation>
    </message>
    <message>
        <source>End session</source>
        <translation>结束会话</translation>
    </message>
    <message>
        <source>Could not pause %1.</source>
        <translation>无法暂停 %1。</translation>
    </message>
    <message>
        <source>Could not resume %1.</source>
        <translation>无法继续 %1。</translation>
    </message>
    <message>
        <source>Could not open %1.</source>
        <translation>无法打开 %1。</translation>
    </message>
</context>
<context>
    <name>SessionControls</name>
    <message>
        <source>Search sessions</source>
        <translation>搜索会话</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>排序</translation>
    </message>
    <message>
        <source>Agent, project, name, state, process or port (:5173)</source>
        <translation>代理、项目、名称、状态、进程或端口 (:5173)</translation>
    </message>
</context>
<context>
    <name>SessionDialogs</name>
    <message>
        <source>What ends</source>
        <translation>将结束的进程</translation>
    </message>
    <message>
        <source>The agent is asked first and has 5 s to save. What it started ends with it, and what stays is force-killed.</source>
        <translation>先请求代理结束，它有 5 秒时间保存。由它启动的程序随之结束，剩余的会被强制结束。</translation>
    </message>
    <message>
        <source>The processes are asked to end, and what stays is force-killed.</source>
        <translation>将请求这些进程结束，剩余的会被强制结束。</translation>
    </message>
    <message>
        <source>This takes the conversation up again: %1</source>
        <translation>用此命令可继续对话：%1</translation>
    </message>
    <message>
        <source>Stops the session and all that it started: they keep their memory and use no processor time until you resume them, or close this program.</source>
        <translation>停止会话及其启动的一切：它们保留内存，但在您继续或关闭本程序之前不使用处理器时间。</translation>
    </message>
    <message>
        <source>The terminal&apos;s shell may report the agent as stopped. After Resume, type fg there.</source>
        <translation>终端的 shell 可能报告代理已停止。继续后，请在那里输入 fg。</translation>
    </message>
    <message>
        <source>Pause %1?</source>
        <translation>暂停 %1？</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
</context>
<context>
    <name>SessionHeader</name>
    <message>
        <source>%1 in swap</source>
        <translation>交换 %1</translation>
    </message>
    <message>
        <source>%1, %2, %3, %4 CPU, %5</source>
        <translation>%1，%2，%3，%4 CPU，%5</translation>
    </message>
    <message>
        <source>last active %1</source>
        <translation>上次活动：%1</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>已展开</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>已折叠</translation>
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
        <translation>监听 %1</translation>
    </message>
    <message>
        <source>running for %1</source>
        <translation>已运行 %1</translation>
    </message>
    <message>
        <source>%1, PID %2</source>
        <translation>%1，PID %2</translation>
    </message>
</context>
<context>
    <name>SessionResultView</name>
    <message>
        <source>%1: ended %2 of %3, freed ~%4</source>
        <translation>%1：已结束 %2/%3，释放约 %4</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Take the conversation up again: %1</source>
        <translation>继续对话：%1</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy command</source>
        <translation>复制命令</translation>
    </message>
</context>
<context>
    <name>SessionRow</name>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Copy details</source>
        <translation>复制详情</translation>
    </message>
    <message>
        <source>End</source>
        <translation>结束</translation>
    </message>
    <message>
        <source>End session</source>
        <translation>结束会话</translation>
    </message>
    <message>
        <source>Pause…</source>
        <translation>暂停…</translation>
    </message>
    <message>
        <source>End session…</source>
        <translation>结束会话…</translation>
    </message>
</context>
<context>
    <name>SessionTexts</name>
    <message>
        <source>agent</source>
        <translation>代理</translation>
    </message>
    <message>
        <source>Agent</source>
        <translation>代理</translation>
    </message>
    <message numerus="yes">
        <source>%n agent(s)</source>
        <translation>
            <numerusform>%n 个代理</numerusform>
        </translation>
    </message>
    <message>
        <source>MCP server</source>
        <translation>MCP 服务器</translation>
    </message>
    <message>
        <source>MCP servers</source>
        <translation>MCP 服务器</translation>
    </message>
    <message numerus="yes">
        <source>%n server(s)</source>
        <translation>
            <numerusform>%n 个服务器</numerusform>
        </translation>
    </message>
    <message>
        <source>dev server</source>
        <translation>开发服务器</translation>
    </message>
    <message>
        <source>Dev servers</source>
        <translation>开发服务器</translation>
    </message>
    <message numerus="yes">
        <source>%n dev server(s)</source>
        <translation>
            <numerusform>%n 个开发服务器</numerusform>
        </translation>
    </message>
    <message>
        <source>browser</source>
        <translation>浏览器</translation>
    </message>
    <message>
        <source>Browsers</source>
        <translation>浏览器</translation>
    </message>
    <message numerus="yes">
        <source>%n browser(s)</source>
        <translation>
            <numerusform>%n 个浏览器</numerusform>
        </translation>
    </message>
    <message>
        <source>command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>命令</translation>
    </message>
    <message numerus="yes">
        <source>%n command(s)</source>
        <translation>
            <numerusform>%n 个命令</numerusform>
        </translation>
    </message>
    <message>
        <source>Working</source>
        <translation>工作中</translation>
    </message>
    <message>
        <source>Waiting for you</source>
        <translation>等待您</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>空闲</translation>
    </message>
    <message numerus="yes">
        <source>%n session(s)</source>
        <translation>
            <numerusform>%n 个会话</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n idle</source>
        <translation>
            <numerusform>%n 个空闲</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n process(es)</source>
        <translation>
            <numerusform>%n 个进程</numerusform>
        </translation>
    </message>
    <message>
        <source>resident %1</source>
        <translation>常驻 %1</translation>
    </message>
</context>
<context>
    <name>SessionsView</name>
    <message>
        <source>No sessions</source>
        <translation>没有会话</translation>
    </message>
    <message>
        <source>Coding agents that run in a terminal or an editor appear here, each with its MCP servers, dev servers, browsers and commands, and with what an ended one left running.</source>
        <translation>在终端或编辑器中运行的编程代理会显示在这里，包括各自的 MCP 服务器、开发服务器、浏览器和命令，以及已结束的代理遗留的进程。</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>清除搜索</translation>
    </message>
    <message>
        <source>No sessions match</source>
        <translation>没有匹配的会话</translation>
    </message>
    <message>
        <source>Every word of the search has to be in the agent, the project, the name, the state, a process or a port of the session.</source>
        <translation>搜索的每个词都必须出现在会话的代理、项目、名称、状态、进程或端口中。</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>会话</translation>
    </message>
    <message>
        <source>Left-overs</source>
        <translation>遗留进程</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>重复进程</translation>
    </message>
</context>
<context>
    <name>SettingsScene</name>
    <message>
        <source>Tavrin Settings</source>
        <translation>Tavrin 设置</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>标签页</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>下一个标签页</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>上一个标签页</translation>
    </message>
</context>
<context>
    <name>ShortcutsSheet</name>
    <message>
        <source>Keyboard</source>
        <translation>键盘</translation>
    </message>
    <message>
        <source>Everywhere</source>
        <translation>全局</translation>
    </message>
    <message>
        <source>Go to a section</source>
        <translation>转到某个部分</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>关闭窗口</translation>
    </message>
    <message>
        <source>Quit Tavrin</source>
        <translation>退出 Tavrin</translation>
    </message>
    <message>
        <source>This sheet</source>
        <translation>本页</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>进程</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Jump to a name</source>
        <translation>跳转到名称</translation>
    </message>
    <message>
        <source>its first letters</source>
        <translation>输入其开头字母</translation>
    </message>
    <message>
        <source>First and last row</source>
        <translation>第一行和最后一行</translation>
    </message>
    <message>
        <source>Select more rows, or all</source>
        <translation>选择更多行或全部</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详情</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Force kill</source>
        <translation>强制结束</translation>
    </message>
    <message>
        <source>Menu of the row</source>
        <translation>行的菜单</translation>
    </message>
    <message>
        <source>Copy the selected rows</source>
        <translation>复制所选行</translation>
    </message>
    <message>
        <source>Fold or open a branch of the tree</source>
        <translation>折叠或展开树的分支</translation>
    </message>
    <message>
        <source>Read and sort anew</source>
        <translation>重新读取并排序</translation>
    </message>
    <message>
        <source>Leave the row</source>
        <translation>离开该行</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Show or hide the sidebar</source>
        <translation>显示或隐藏侧边栏</translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>In progress</source>
        <translation>进行中</translation>
    </message>
</context>
<context>
    <name>Stepper</name>
    <message>
        <source>Less: %1</source>
        <translation>减少：%1</translation>
    </message>
    <message>
        <source>More: %1</source>
        <translation>增加：%1</translation>
    </message>
</context>
<context>
    <name>SummedMemory</name>
    <message>
        <source>resident %1, in swap %2</source>
        <translation>常驻 %1，交换 %2</translation>
    </message>
    <message>
        <source>at least %1 (%2)</source>
        <translation>至少 %1（%2）</translation>
    </message>
    <message>
        <source>about %1 (%2)</source>
        <translation>约 %1（%2）</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
</context>
<context>
    <name>TableView</name>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
</context>
<context>
    <name>TextListEditor</name>
    <message>
        <source>Remove %1</source>
        <translation>删除 %1</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>选择文件夹…</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>选择文件夹</translation>
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
        <translation>没有温度</translation>
    </message>
    <message>
        <source>This computer shows no sensors to programs, as most virtual machines. The tile shows the state that the kernel reports.</source>
        <translation>与大多数虚拟机一样，这台电脑不向程序提供传感器。磁贴显示内核报告的状态。</translation>
    </message>
    <message>
        <source>Sensors</source>
        <translation>传感器</translation>
    </message>
    <message>
        <source>A sensor does not answer. It is asked again once it does, while this page is open.</source>
        <translation>有传感器没有响应。在此页面打开期间，一旦它响应就会再次查询。</translation>
    </message>
</context>
<context>
    <name>ThermalState</name>
    <message>
        <source>Cool</source>
        <translation>凉爽</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>温热</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>高温</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>严重</translation>
    </message>
</context>
<context>
    <name>Translations</name>
    <message>
        <source>Claude Code plugin cache</source>
        <translation>Claude Code 插件缓存</translation>
    </message>
    <message>
        <source>npx cache</source>
        <translation>npx 缓存</translation>
    </message>
    <message>
        <source>Playwright browsers</source>
        <translation>Playwright 浏览器</translation>
    </message>
    <message>
        <source>User caches</source>
        <translation>用户缓存</translation>
    </message>
    <message>
        <source>User logs</source>
        <translation>用户日志</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>回收站</translation>
    </message>
    <message>
        <source>Old /tmp (&gt;7d)</source>
        <translation>/tmp 旧文件（&gt;7 天）</translation>
    </message>
    <message>
        <source>Old Downloads (&gt;30d)</source>
        <translation>旧的下载（&gt;30 天）</translation>
    </message>
    <message>
        <source>Old Desktop screenshots (&gt;30d)</source>
        <translation>旧的桌面截图（&gt;30 天）</translation>
    </message>
    <message>
        <source>Claude Code &amp; Agents</source>
        <translation>Claude Code 与代理</translation>
    </message>
    <message>
        <source>IDEs</source>
        <translation>IDE</translation>
    </message>
    <message>
        <source>Terminals</source>
        <translation>终端</translation>
    </message>
    <message>
        <source>Browsers</source>
        <translation>浏览器</translation>
    </message>
    <message>
        <source>Docker &amp; Containers</source>
        <translation>Docker 与容器</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系统</translation>
    </message>
    <message>
        <source>Gradle logs (&gt;7d)</source>
        <translation>Gradle 日志（&gt;7 天）</translation>
    </message>
    <message>
        <source>Cargo sources and checkouts</source>
        <translation>Cargo 源代码和检出</translation>
    </message>
    <message>
        <source>Go build cache</source>
        <translation>Go 构建缓存</translation>
    </message>
    <message>
        <source>Rust toolchains</source>
        <translation>Rust 工具链</translation>
    </message>
    <message>
        <source>Conda packages</source>
        <translation>Conda 软件包</translation>
    </message>
    <message>
        <source>Editor caches</source>
        <translation>编辑器缓存</translation>
    </message>
    <message>
        <source>Local history of JetBrains editors</source>
        <translation>JetBrains 编辑器的本地历史</translation>
    </message>
    <message>
        <source>Agent logs (&gt;7d)</source>
        <translation>代理日志（&gt;7 天）</translation>
    </message>
    <message>
        <source>Agent shell snapshots (&gt;30d)</source>
        <translation>代理 shell 快照（&gt;30 天）</translation>
    </message>
    <message>
        <source>Texts pasted into Claude Code (&gt;30d)</source>
        <translation>粘贴到 Claude Code 的文本（&gt;30 天）</translation>
    </message>
    <message>
        <source>Hugging Face models</source>
        <translation>Hugging Face 模型</translation>
    </message>
    <message>
        <source>Ollama models</source>
        <translation>Ollama 模型</translation>
    </message>
    <message>
        <source>LM Studio models</source>
        <translation>LM Studio 模型</translation>
    </message>
    <message>
        <source>Flatpak application caches</source>
        <translation>Flatpak 应用缓存</translation>
    </message>
    <message>
        <source>Snap application caches</source>
        <translation>Snap 应用缓存</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>缩略图</translation>
    </message>
    <message>
        <source>Shader caches</source>
        <translation>着色器缓存</translation>
    </message>
    <message>
        <source>Crash reports (&gt;7d)</source>
        <translation>崩溃报告（&gt;7 天）</translation>
    </message>
    <message>
        <source>Downloaded system packages</source>
        <translation>已下载的系统软件包</translation>
    </message>
    <message>
        <source>System journal over 500 MB</source>
        <translation>超过 500 MB 的系统日志</translation>
    </message>
    <message>
        <source>CPU% • RAM%</source>
        <translation>CPU% • 内存%</translation>
    </message>
    <message>
        <source>CPU%</source>
        <translation>CPU%</translation>
    </message>
    <message>
        <source>RAM%</source>
        <translation>内存%</translation>
    </message>
    <message>
        <source>Icon only</source>
        <translation>仅图标</translation>
    </message>
    <message>
        <source>5 min</source>
        <translation>5 分钟</translation>
    </message>
    <message>
        <source>25 min</source>
        <translation>25 分钟</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 小时</translation>
    </message>
    <message>
        <source>Project leftovers</source>
        <translation>项目残留</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>概览</translation>
    </message>
    <message>
        <source>Optimize</source>
        <translation>优化</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>进程</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <translation>清理</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>会话</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>内存</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Last active</source>
        <translation>上次活动</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Sampling</source>
        <translation>采样</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>提醒</translation>
    </message>
    <message>
        <source>Quick Kills</source>
        <translation>快速结束</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史</translation>
    </message>
</context>
<context>
    <name>WidgetView</name>
    <message>
        <source>Open dashboard</source>
        <translation>打开主窗口</translation>
    </message>
    <message>
        <source>Hide widget</source>
        <translation>隐藏小组件</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>RAM</source>
        <translation>内存</translation>
    </message>
    <message>
        <source>Disk free</source>
        <translation>磁盘可用</translation>
    </message>
    <message>
        <source>Therm</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Groups (RAM)</source>
        <translation>分组（内存）</translation>
    </message>
    <message numerus="yes">
        <source>+ %n more alert(s)</source>
        <translation>
            <numerusform>+ 另有 %n 条提醒</numerusform>
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
        <translation>电脑</translation>
    </message>
    <message>
        <source>task bar</source>
        <translation>任务栏</translation>
    </message>
    <message>
        <source>Status area</source>
        <translation>状态区</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>符号</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系统</translation>
    </message>
</context>
</TS>
