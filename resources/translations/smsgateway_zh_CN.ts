<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>smsgateway</name>
    <message>
        <source>this engine knows no command: %1</source>
        <translation>这种网络不认得命令：%1</translation>
    </message>
    <message>
        <source>fine</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>store in %1</source>
        <translation>%1 里存短信的文件</translation>
    </message>
    <message>
        <source>engine</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>too many bytes without a pause</source>
        <translation>一口气送来的太多</translation>
    </message>
    <message>
        <source>more of this is left out for a minute</source>
        <translation>这样的话太多，一分钟内不再写了</translation>
    </message>
    <message>
        <source>it is no FIFO</source>
        <translation>不是命名管道（FIFO）</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>这一行太长</translation>
    </message>
    <message>
        <source>the line is not UTF-8</source>
        <translation>这一行不是 UTF-8</translation>
    </message>
    <message>
        <source>network: %1</source>
        <translation>网络：%1</translation>
    </message>
    <message>
        <source>gammu-smsd&apos;s database is being opened</source>
        <translation>正在打开 gammu-smsd 的数据库</translation>
    </message>
    <message>
        <source>gammu-smsd never got it</source>
        <translation>gammu-smsd 没有收到过</translation>
    </message>
    <message>
        <source>gammu-smsd stands still</source>
        <translation>gammu-smsd 停住不动了</translation>
    </message>
    <message>
        <source>this version of the gateway knows gammu-smsd&apos;s SQLite alone</source>
        <translation>这一版网关只认得 gammu-smsd 的 SQLite 数据库</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>没有这个文件</translation>
    </message>
    <message>
        <source>another program keeps it locked</source>
        <translation>别的程序一直占用着</translation>
    </message>
    <message>
        <source>it is damaged or no database of SQLite</source>
        <translation>已经损坏，或者不是 SQLite 数据库</translation>
    </message>
    <message>
        <source>gammu-smsd has not begun to serve a modem in this database</source>
        <translation>gammu-smsd 还没有用这个数据库管过短信猫</translation>
    </message>
    <message>
        <source>gammu-smsd has given no sign of life for modem %1</source>
        <translation>gammu-smsd 好久没有短信猫 %1 的动静了</translation>
    </message>
    <message>
        <source>gammu-smsd, modem %1, signal %2 %</source>
        <translation>gammu-smsd，短信猫 %1，信号 %2 %</translation>
    </message>
    <message>
        <source>gammu-smsd, modem %1</source>
        <translation>gammu-smsd，短信猫 %1</translation>
    </message>
    <message>
        <source>gammu-smsd&apos;s database %1: %2</source>
        <translation>gammu-smsd 的数据库 %1：%2</translation>
    </message>
    <message>
        <source>its tables are not of version %1</source>
        <translation>里面的表不是第 %1 版</translation>
    </message>
    <message>
        <source>gammu-smsd began to send it and was interrupted, or lost it</source>
        <translation>gammu-smsd 发到一半断了，或者弄丢了</translation>
    </message>
    <message>
        <source>gammu-smsd will try again</source>
        <translation>gammu-smsd 还会再试</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>等不到回话</translation>
    </message>
    <message>
        <source>the answer is no HTTP</source>
        <translation>回的话不是 HTTP</translation>
    </message>
    <message>
        <source>no status.xml: %1</source>
        <translation>读不到 status.xml：%1</translation>
    </message>
    <message>
        <source>not tried yet</source>
        <translation>还没有试过</translation>
    </message>
    <message>
        <source>Kannel cannot be asked; only a report can tell</source>
        <translation>Kannel 不能查问，只有等它回报</translation>
    </message>
    <message>
        <source>Kannel takes messages</source>
        <translation>Kannel 在收短信</translation>
    </message>
    <message>
        <source>Kannel takes no messages: %1</source>
        <translation>Kannel 不收短信：%1</translation>
    </message>
    <message>
        <source>no such address, or not its secret</source>
        <translation>没有这个地址，或者暗号不对</translation>
    </message>
    <message>
        <source>a call for Kannel was refused: %1</source>
        <translation>拒绝了一次以 Kannel 名义的回报：%1</translation>
    </message>
    <message>
        <source>%1 is missing or stands there twice</source>
        <translation>%1 没有写，或者写了两遍</translation>
    </message>
    <message>
        <source>%1 is no text of up to %2 characters</source>
        <translation>%1 不是 %2 个字以内的文字</translation>
    </message>
    <message>
        <source>%1 is no positive number</source>
        <translation>%1 不是大于零的数</translation>
    </message>
    <message>
        <source>(a message that is no text: %1)</source>
        <translation>（收到的不是文字：%1）</translation>
    </message>
    <message>
        <source>the character set is neither UTF-8 nor UTF-16BE</source>
        <translation>字符集既不是 UTF-8，也不是 UTF-16BE</translation>
    </message>
    <message>
        <source>the text is not in its character set</source>
        <translation>文字和它写明的字符集不符</translation>
    </message>
    <message>
        <source>type is none of 1, 2, 4, 8, 16</source>
        <translation>type 不是 1、2、4、8、16 中的一个</translation>
    </message>
    <message>
        <source>id or from is empty</source>
        <translation>id 或 from 是空的</translation>
    </message>
    <message>
        <source>time is no moment</source>
        <translation>time 不是一个时刻</translation>
    </message>
    <message>
        <source>Kannel does not know this user name and password</source>
        <translation>Kannel 不认得这个用户名和口令</translation>
    </message>
    <message>
        <source>Kannel is not ready: %1</source>
        <translation>Kannel 还没有准备好：%1</translation>
    </message>
    <message>
        <source>this is no sendsms of Kannel (HTTP %1: %2)</source>
        <translation>这不是 Kannel 的 sendsms（HTTP %1：%2）</translation>
    </message>
    <message>
        <source>Kannel does not know this status password</source>
        <translation>Kannel 不认得这个状态口令</translation>
    </message>
    <message>
        <source>this is no status.xml of Kannel (HTTP %1)</source>
        <translation>这不是 Kannel 的 status.xml（HTTP %1）</translation>
    </message>
    <message>
        <source>%1 of %2 links online, %3 messages stored</source>
        <translation>%2 条线路中 %1 条通着，存着 %3 条短信</translation>
    </message>
    <message>
        <source>cannot read the store in %1: %2</source>
        <translation>%1 里存短信的文件读不了：%2</translation>
    </message>
    <message>
        <source>command ignored: %1</source>
        <translation>命令没有执行：%1</translation>
    </message>
    <message>
        <source>no status page and no calls from networks until %1 is free: %2</source>
        <translation>%1 空出来以前没有状态页，也收不到网络的回报：%2</translation>
    </message>
    <message>
        <source>cannot open the FIFO %1: %2</source>
        <translation>打不开命名管道 %1：%2</translation>
    </message>
    <message>
        <source>cannot listen on %1: %2</source>
        <translation>不能在 %1 上等候：%2</translation>
    </message>
    <message>
        <source>cannot use the store in %1: %2</source>
        <translation>%1 里存短信的文件不能用：%2</translation>
    </message>
    <message>
        <source>there is no message %1</source>
        <translation>没有编号 %1 的短信</translation>
    </message>
    <message>
        <source>message</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>state</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>since</source>
        <translation>从何时起</translation>
    </message>
    <message>
        <source>reason</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>taken</source>
        <translation>收下的时间</translation>
    </message>
    <message>
        <source>client</source>
        <translation>来自</translation>
    </message>
    <message>
        <source>answer to the client</source>
        <translation>给程序的回话</translation>
    </message>
    <message>
        <source>repeats taken for it</source>
        <translation>当成它的重发</translation>
    </message>
    <message>
        <source>mobile</source>
        <translation>手机</translation>
    </message>
    <message>
        <source>number for the network</source>
        <translation>给网络的号码</translation>
    </message>
    <message>
        <source>attempts</source>
        <translation>试过几次</translation>
    </message>
    <message>
        <source>next attempt</source>
        <translation>下次再试</translation>
    </message>
    <message>
        <source>the network&apos;s reference</source>
        <translation>网络的编号</translation>
    </message>
    <message>
        <source>text</source>
        <translation>短信</translation>
    </message>
    <message>
        <source>message %1 is %2: nothing is changed</source>
        <translation>短信 %1 的状态是 %2，没有改动</translation>
    </message>
    <message>
        <source>no gateway is told of it: %1</source>
        <translation>没能通知网关：%1</translation>
    </message>
    <message>
        <source>Serve clients on this address; port 0 takes a free one (default 127.0.0.1:9100).</source>
        <translation>在这个地址上等程序连来；端口 0 是任意一个空的（平常是 127.0.0.1:9100）。</translation>
    </message>
    <message>
        <source>address:port</source>
        <translation>地址:端口</translation>
    </message>
    <message>
        <source>Keep messages in this folder.</source>
        <translation>短信存在这个文件夹里。</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Show the status page on this address (default 127.0.0.1:9101).</source>
        <translation>在这个地址上显示状态页（平常是 127.0.0.1:9101）。</translation>
    </message>
    <message>
        <source>Show no status page.</source>
        <translation>不要状态页。</translation>
    </message>
    <message>
        <source>The network to use: simulator (default), kannel or gammu.</source>
        <translation>用哪种网络：simulator（平常）、kannel 或 gammu。</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名字</translation>
    </message>
    <message>
        <source>Simulator: probability, 0 to 1, that a message is refused.</source>
        <translation>模拟：短信被拒收的比例，0 到 1。</translation>
    </message>
    <message>
        <source>Simulator: probability, 0 to 1, that an accepted message is not delivered.</source>
        <translation>模拟：收下以后送不到的比例，0 到 1。</translation>
    </message>
    <message>
        <source>Simulator: probability, 0 to 1, that nothing is heard of a message.</source>
        <translation>模拟：没有回音的比例，0 到 1。</translation>
    </message>
    <message>
        <source>Simulator: milliseconds before a message is accepted.</source>
        <translation>模拟：隔多少毫秒收下一条。</translation>
    </message>
    <message>
        <source>Simulator: milliseconds from then to a report of delivery; 0 is none (default).</source>
        <translation>模拟：再隔多少毫秒回报送达；0 是不回报（平常）。</translation>
    </message>
    <message>
        <source>Simulator: answer every accepted message with a received one.</source>
        <translation>模拟：收下的每一条都回一条。</translation>
    </message>
    <message>
        <source>Simulator: milliseconds before such an answer (default 1000).</source>
        <translation>模拟：隔多少毫秒回（平常 1000）。</translation>
    </message>
    <message>
        <source>Takes text messages from clients to a mobile network.</source>
        <translation>把程序送来的短信交给手机网络。</translation>
    </message>
    <message>
        <source>Nothing: serve. check: try the settings. list: show messages. show: tell all of one. resend: send one once more that failed, or of which nothing is known. drop: give one up that waits, or of which nothing is known.</source>
        <translation>不写：开网关。check：试一试设置。list：列出短信。show：一条短信的全部情况。resend：把失败的、不知下落的再发一遍。drop：不再发等着的、不知下落的。</translation>
    </message>
    <message>
        <source>Print this help and exit.</source>
        <translation>显示这份说明，然后结束。</translation>
    </message>
    <message>
        <source>Print the version and exit.</source>
        <translation>显示版本，然后结束。</translation>
    </message>
    <message>
        <source>Read the settings from this file.</source>
        <translation>从这个文件读设置。</translation>
    </message>
    <message>
        <source>file</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>List: only messages in this state: %1. Else the same as --store.</source>
        <translation>list：只列这种状态的短信：%1。别的命令里和 --store 一样。</translation>
    </message>
    <message>
        <source>state or folder</source>
        <translation>状态或文件夹</translation>
    </message>
    <message>
        <source>List: only messages from this time on, as &quot;2026-11-21&quot; or &quot;2026-11-21 17:30&quot;.</source>
        <translation>list：只列这个时间以后的短信，写成 &quot;2026-11-21&quot; 或 &quot;2026-11-21 17:30&quot;。</translation>
    </message>
    <message>
        <source>time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>List: a line of JSON for every message.</source>
        <translation>list：每条短信一行 JSON。</translation>
    </message>
    <message>
        <source>Read commands from this FIFO as well as from standard input. The simulator&apos;s command &quot;recv NUMBER TEXT&quot; lets a message arrive.</source>
        <translation>除了标准输入，也从这个命名管道读命令。模拟网络的命令“recv 号码 短信”会让一条短信进来。</translation>
    </message>
    <message>
        <source>FIFO</source>
        <translation>命名管道</translation>
    </message>
    <message>
        <source>--%1 %2: expected %3</source>
        <translation>--%1 %2：应该是%3</translation>
    </message>
    <message>
        <source>--%1: expected a name</source>
        <translation>--%1：应该写一个名字</translation>
    </message>
    <message>
        <source>--state %1: expected one of: %2</source>
        <translation>--state %1：应该是这些中的一个：%2</translation>
    </message>
    <message>
        <source>--since %1: expected a time as 2026-11-21 or &quot;2026-11-21 17:30&quot;</source>
        <translation>--since %1：时间应该写成 2026-11-21 或 &quot;2026-11-21 17:30&quot;</translation>
    </message>
    <message>
        <source>expected %1 instead of: %2</source>
        <translation>这里应该写 %1，而不是：%2</translation>
    </message>
    <message>
        <source>no file is free for another client</source>
        <translation>打开的文件太多，再连不下一个程序</translation>
    </message>
    <message>
        <source>too many links from %1</source>
        <translation>%1 连来的太多</translation>
    </message>
    <message>
        <source>too many links</source>
        <translation>连来的太多</translation>
    </message>
    <message>
        <source>a client at %1 is turned away: too many links</source>
        <translation>没有让 %1 连进来：连来的太多</translation>
    </message>
    <message>
        <source>a client at %1 is disconnected: %2</source>
        <translation>断开了 %1 的连接：%2</translation>
    </message>
    <message>
        <source>the gateway stood still: what came meanwhile is refused</source>
        <translation>网关停顿过一阵：这期间送来的都退回</translation>
    </message>
    <message>
        <source>yes or no</source>
        <translation>yes 或 no</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>%1 到 %2 的整数</translation>
    </message>
    <message>
        <source>a probability from 0 to 1</source>
        <translation>0 到 1 的比例</translation>
    </message>
    <message>
        <source>an IP address, a colon and a port from 0 to 65535</source>
        <translation>IP 地址、冒号和 0 到 65535 的端口</translation>
    </message>
    <message>
        <source>an address that begins with http://</source>
        <translation>以 http:// 开头的地址</translation>
    </message>
    <message>
        <source>up to %1 digits</source>
        <translation>最多 %1 位数字</translation>
    </message>
    <message>
        <source>16 to 200 letters of English, digits, &quot;_&quot; and &quot;-&quot;</source>
        <translation>16 到 200 个英文字母、数字、“_”和“-”</translation>
    </message>
    <message>
        <source>numbers with &quot;x&quot; for any digit, &quot;*&quot; at the end for more of them, and commas between</source>
        <translation>号码的样子，x 是任意一位，末尾的 * 是后面还可以有，之间用逗号隔开</translation>
    </message>
    <message>
        <source>one of: %1</source>
        <translation>这些中的一个：%1</translation>
    </message>
    <message>
        <source>no such setting</source>
        <translation>没有这项设置</translation>
    </message>
    <message>
        <source>expected &quot;[section]&quot;, &quot;key = value&quot; or a comment that begins with &quot;;&quot;</source>
        <translation>应该是“[段]”“名字 = 值”，或者分号开头的说明</translation>
    </message>
    <message>
        <source>%1 stands already in line %2</source>
        <translation>第 %2 行已经写过 %1</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>没有写 %1</translation>
    </message>
    <message>
        <source>%1: this is no settings file</source>
        <translation>%1：不是设置文件</translation>
    </message>
    <message>
        <source>there is no setting %1</source>
        <translation>没有 %1 这项设置</translation>
    </message>
    <message>
        <source>%1: expected %2</source>
        <translation>%1：应该是%2</translation>
    </message>
    <message>
        <source>%1 = %2: expected %3</source>
        <translation>%1 = %2：应该是%3</translation>
    </message>
    <message>
        <source>simulated refusal</source>
        <translation>模拟的拒收</translation>
    </message>
    <message>
        <source>simulated throttling</source>
        <translation>模拟的限流</translation>
    </message>
    <message>
        <source>simulated silence</source>
        <translation>模拟的没有回音</translation>
    </message>
    <message>
        <source>simulated network</source>
        <translation>模拟的网络，不真发</translation>
    </message>
    <message>
        <source>simulated network, switched off</source>
        <translation>模拟的网络，关着</translation>
    </message>
    <message>
        <source>expected &quot;recv NUMBER TEXT&quot;, &quot;up&quot; or &quot;down&quot;</source>
        <translation>应该是“recv 号码 短信”、“up”或“down”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number</source>
        <translation>“%1”不是号码</translation>
    </message>
    <message>
        <source>cannot make the folder</source>
        <translation>建不了文件夹</translation>
    </message>
    <message>
        <source>another gateway has it open</source>
        <translation>另一个网关正开着它</translation>
    </message>
    <message>
        <source>it is of a newer version of this program</source>
        <translation>它是更新版本的程序建的</translation>
    </message>
    <message>
        <source>it is not complete</source>
        <translation>它不完整</translation>
    </message>
    <message>
        <source>the store cannot be used: %1</source>
        <translation>存短信的文件不能用：%1</translation>
    </message>
    <message>
        <source>this is no number</source>
        <translation>这不是号码</translation>
    </message>
    <message>
        <source>this text cannot be sent</source>
        <translation>这样的文字发不了</translation>
    </message>
    <message>
        <source>%1: a value with one of , ; \ belongs between quotation marks, each \ in it twice</source>
        <translation>%1：值里有 , ; \ 的，要用英文双引号括起来，其中的 \ 写两遍</translation>
    </message>
</context>
</TS>
