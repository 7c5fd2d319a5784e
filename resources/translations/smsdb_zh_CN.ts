<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>smsdb</name>
    <message>
        <source>%1 (see smsdb %2 --help)</source>
        <translation>%1（请看 smsdb %2 --help）</translation>
    </message>
    <message>
        <source>%1 takes %2 name(s) (see smsdb %1 --help)</source>
        <translation>%1 要 %2 个名称（请看 smsdb %1 --help）</translation>
    </message>
    <message>
        <source>no command (see smsdb --help)</source>
        <translation>没有命令（请看 smsdb --help）</translation>
    </message>
    <message>
        <source>unknown command: %1 (see smsdb --help)</source>
        <translation>没有这个命令：%1（请看 smsdb --help）</translation>
    </message>
    <message>
        <source>Usage: smsdb archive FILE --before DATE [--to ARCHIVE.csv]

Moves old messages from the database FILE to a new file for a spreadsheet: messages sent whose send
time, and messages received whose receipt time, lies before DATE. Messages that wait to be sent stay
whatever their time, and so does a message whose time cannot be read; those are reported.
Then the numbers of the messages that stay close up from 1 in their order, and new messages are
numbered on from there; so do those of group sends, memberships, rights and the operation log, to
which nothing points (see smsdb renumber). The file gives back the room that it does not need any
more. When no message goes, no file is made and no number changes.

  --before DATE       YYYY-MM-DD or YYYY/MM/DD; messages of that day itself stay
  --to ARCHIVE.csv    the file to make (default: FILE-before-YYYY-MM-DD.csv); it must not exist yet

Every client must be closed: the command refuses to work while another program has FILE open, and
nobody can open it until it is done. The messages are on disk in ARCHIVE.csv before one is taken out
of FILE. If the command is interrupted they are still in FILE or, if that is done, in ARCHIVE.csv;
then run it again with another --to if ARCHIVE.csv is there already.

ARCHIVE.csv is UTF-8 with a byte order mark, readable by its owner alone. A text that begins with
= + - @ (wide ones too), a tab or a line break would be taken for a formula, so an apostrophe stands
before it, and before one that begins with an apostrophe too.

Exit status: 0 done, or nothing to do; 2 not done, and the messages are in FILE.
</source>
        <translation>用法：smsdb archive 数据文件 --before 日期 [--to 归档.csv]

把数据文件里的旧短信移到一个新的电子表格文件里：发送时间在这一天以前的已发送的短信，接收时间在这一天以前
的收到的短信。待发送的短信不论时间都留着；时间看不懂的也留着，并且列出来。
然后，留下的短信按原来的顺序从 1 重新编号，新的短信接着往下编；没有别处指着的群发、分组、权限和操作日志
也一样（请看 smsdb renumber）。文件随后变小。没有短信可以移走时，不建文件，编号也不变。

  --before 日期      写成 2026-07-01 或 2026/07/01；这一天当天的短信留着
  --to 归档.csv      要建的文件（不写就是 数据文件-before-年-月-日.csv）；不能是已经有的

请先关掉所有的程序：还有程序开着数据文件，这条命令就不做；它做完以前，谁也打不开数据文件。短信先存进归档.csv，
再从数据文件里拿掉。命令中途断了，短信还在数据文件里；已经拿掉了的，就在归档.csv 里。再运行一次就行；
归档.csv 已经有了的，用 --to 换一个名字。

归档.csv 是带标记的 UTF-8，只有主人能读。以 = + - @（全角的也算）、制表符或换行开头的内容会被当成公式，
所以前面加一个英文单引号；本来就以英文单引号开头的，前面也加一个。

退出状态：0 做好了，或者没有要做的；2 没有做，短信都在数据文件里。
</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>已发送的</translation>
    </message>
    <message>
        <source>received</source>
        <translation>收到的</translation>
    </message>
    <message>
        <source>--before %1: expected a date, YYYY-MM-DD or YYYY/MM/DD (see smsdb archive --help)</source>
        <translation>--before %1：要写日期，像 2026-07-01 或 2026/07/01（请看 smsdb archive --help）</translation>
    </message>
    <message>
        <source>moved %1 %2 message(s) to %3
</source>
        <translation>把 %1 条%2短信移到了 %3
</translation>
    </message>
    <message>
        <source>kept %1 %2 message(s) whose time cannot be read, number(s) %3
</source>
        <translation>有 %1 条%2短信的时间看不懂，留着没动，编号：%3
</translation>
    </message>
    <message>
        <source>--%1 names nothing (see smsdb archive --help)</source>
        <translation>--%1 后面没有写内容（请看 smsdb archive --help）</translation>
    </message>
    <message>
        <source>next numbers: %1
</source>
        <translation>以后的编号从这里开始：%1
</translation>
    </message>
    <message>
        <source>%1; its messages stay in it, though %2 is written</source>
        <translation>%1；短信都还在里面，不过 %2 已经写好了</translation>
    </message>
    <message>
        <source>nothing to archive
</source>
        <translation>没有要归档的短信
</translation>
    </message>
    <message>
        <source>move old messages to a file for a spreadsheet</source>
        <translation>把旧短信移到一个电子表格文件里</translation>
    </message>
    <message>
        <source>Usage: smsdb backup FILE TO

Copies the database FILE to TO, which must not exist, also while clients are working in it: TO holds what
FILE held when the copying began. TO is one whole file, readable by its owner alone, which a client can
open in FILE&apos;s place. It is checked before it gets its name; until then it is called TO.smsdb-part, and
TO.smsdb-lock keeps a second run away. What a killed run leaves of these the next one replaces.

A FILE that is damaged, holds not all tables of this system or is of a newer version is not copied (see
smsdb check). One of an older version is copied as it is.
To go back to a backup use smsdb restore.

Exit status: 0 copied; 2 not copied.
</source>
        <translation>用法：smsdb backup 数据文件 备份

把数据文件备份成“备份”，那里不能已经有文件；程序开着也可以做：备份里是开始备份那一刻的内容。备份是一个完整的
文件，只有主人能读，程序可以直接打开它来代替原来的数据文件。检查过以后它才得到自己的名字，在那以前叫
备份.smsdb-part；备份.smsdb-lock 让第二条命令等开。上次没做完留下的这些，下一次会换掉。

数据文件已经损坏、缺了本系统的表、是更新的版本的，就不备份（请看 smsdb check）。旧版本的照原样备份。
要用备份恢复，请用 smsdb restore。

退出状态：0 备份好了；2 没有备份。
</translation>
    </message>
    <message>
        <source>copied %1 to %2
</source>
        <translation>已把 %1 备份到 %2
</translation>
    </message>
    <message>
        <source>copy a database, also while clients are working in it</source>
        <translation>备份数据文件，程序开着也可以</translation>
    </message>
    <message>
        <source>Usage: smsdb check FILE

Looks through the database FILE, also while clients are working in it, and changes nothing. Prints for
every table how many rows it holds, the highest number given out so far and how much of the numbers
1 to 32767 that is. Then come notes, which trouble nobody, and the findings, a line each.

Notes:
  - history (a message, a group send, a line of the log) names what was deleted since
  - a right or a membership names what is not there (smsdb tidy takes such rows out)
  - a table, a view, an index or a trigger is none of this system&apos;s
  - a telephone number is not written as it is dialled (smsdb tidy --numbers mends it), or is none

Findings:
  - the file is damaged
  - FILE is of an older version (smsdb upgrade brings it up to date) or of a newer one
  - a table, a view, an index, a column or the definition of a list is missing, or a table, a view or an
    index is defined otherwise than in a fresh database
  - 80 % or more of a table&apos;s numbers are given out (smsdb archive and smsdb renumber start some over)
  - a value is no 16-bit number, which no screen can read
  - a row names another that does not exist, and it is neither of the above
  - the gateway parameters are not exactly one row
  - FILE-lease, which a client locks in order to send, cannot be written
  - an operator has a Null for a name or a password, and so cannot log in
  - nobody who can log in may manage the operators (smsdb grant is the way back)
  - a text that the client writes or searches for has an apostrophe, with which it cannot be saved or found

Exit status: 0 nothing found; 1 findings; 2 the file cannot be used (missing, no database of this
system, the old format, locked).
</source>
        <translation>用法：smsdb check 数据文件

检查数据文件，程序开着也可以做，什么都不改。先列出每张表有多少行、编号已经用到多大、占 1 到 32767 的几成；
再列出说明（不碍事）和问题，一行一个。

说明：
  - 以前的记录（短信、群发、操作日志）提到的客户、分类、操作员后来删掉了
  - 权限或分组提到的已经没有了（可以用 smsdb tidy 清掉）
  - 有一张表、一个视图、索引或触发器不是本系统的
  - 电话号码写得不合拨号的样子（可以用 smsdb tidy --numbers 改好），或者不是号码

问题：
  - 文件已经损坏
  - 数据文件是旧版本的（用 smsdb upgrade 升级），或者是更新的版本的
  - 少了表、视图、索引、列或者列表的定义，或者表、视图、索引的定义和新建的数据文件不一样
  - 一张表的编号用掉了八成以上（smsdb archive 和 smsdb renumber 可以让一些表从头编起）
  - 有的值不是 -32768 到 32767 的整数，程序读不了
  - 有一行提到的另一行没有，又不属于上面两种
  - 网关的参数不是正好一行
  - 数据文件-lease 写不进去；程序要锁住它才能发短信
  - 操作员的名字或口令是空值，登录不了
  - 能登录的人里没有一个能管理操作员（请用 smsdb grant）
  - 程序要存或者要找的内容里有英文单引号，存不上也找不到

退出状态：0 没有问题；1 有问题；2 文件不能用（没有这个文件、不是本系统的、是老系统的、被别的程序锁住）。
</translation>
    </message>
    <message>
        <source>%1 cannot be written: a client that may not mend it sends nothing</source>
        <translation>%1 写不进去：改不了它的程序一条短信也不会发</translation>
    </message>
    <message>
        <source>table.key</source>
        <translation>表.编号</translation>
    </message>
    <message>
        <source>rows</source>
        <translation>行数</translation>
    </message>
    <message>
        <source>highest</source>
        <translation>最大编号</translation>
    </message>
    <message>
        <source>used</source>
        <translation>已用</translation>
    </message>
    <message>
        <source>no findings
</source>
        <translation>没有发现问题
</translation>
    </message>
    <message>
        <source>look for faults, and for numbers that run out</source>
        <translation>检查有没有毛病，编号是不是快用完了</translation>
    </message>
    <message>
        <source>%1: is open in a client or another program; close it first</source>
        <translation>%1：有程序正开着它，请先关掉</translation>
    </message>
    <message>
        <source>standard output cannot be written</source>
        <translation>屏幕输出写不出去</translation>
    </message>
    <message>
        <source>what is told above is not done:</source>
        <translation>上面说的没有做成：</translation>
    </message>
    <message>
        <source>%1: there is no such file</source>
        <translation>%1：没有这个文件</translation>
    </message>
    <message>
        <source>%1: cannot be opened: %2</source>
        <translation>%1：打不开：%2</translation>
    </message>
    <message>
        <source>%1: is no database of this system or is damaged: %2</source>
        <translation>%1：不是本系统的数据文件，或者已经损坏：%2</translation>
    </message>
    <message>
        <source>%1: is a database of the old format, which has to be imported first</source>
        <translation>%1：是老系统的数据文件，要先导入（smsdb import）</translation>
    </message>
    <message>
        <source>%1: was made by a newer version of this system</source>
        <translation>%1：是本系统更新的版本做的</translation>
    </message>
    <message>
        <source>%1: is in use by another program</source>
        <translation>%1：别的程序正在用它</translation>
    </message>
    <message>
        <source>%1: reading or writing failed: %2</source>
        <translation>%1：读写失败：%2</translation>
    </message>
    <message>
        <source>--charset %1: unknown</source>
        <translation>--charset %1：没有这种编码</translation>
    </message>
    <message>
        <source>Usage: smsdb create FILE

Makes the database of a fresh office, as the client does at its first start: the operator valdrine
with an empty password and all rights, and a gateway at 127.0.0.1, port 9100.
A file that exists is never touched.

Exit status: 0 made; 2 not made.
</source>
        <translation>用法：smsdb create 数据文件

新建一个数据文件，和第一次打开程序时建的一样：操作员 valdrine，口令是空的，有全部权限；网关在 127.0.0.1，
端口 9100。已经有的文件绝不动。

退出状态：0 建好了；2 没有建。
</translation>
    </message>
    <message>
        <source>made %1
</source>
        <translation>已建好 %1
</translation>
    </message>
    <message>
        <source>make the database of a fresh office</source>
        <translation>新建一个数据文件</translation>
    </message>
    <message>
        <source>%1: is damaged: %2</source>
        <translation>%1：已经损坏：%2</translation>
    </message>
    <message>
        <source>Usage: smsdb grant FILE OPERATOR

The way back in when nobody can manage the operators any more: gives the operator of that name in the
database FILE both rights and an EMPTY PASSWORD, so that anybody can log in under that name until a password
is set. Makes the operator when there is none of that name; of several the one with the lowest number is
taken. Whoever may write FILE may do this. Then log in as OPERATOR at once and set a password.

Exit status: 0 granted; 2 not granted.
</source>
        <translation>用法：smsdb grant 数据文件 操作员

谁都不能管理操作员时用它：给数据文件里叫这个名字的操作员两种权限和【空的口令】，在改口令以前谁都能用这个名字登录。
没有这个操作员就新建一个；有几个同名的，用编号最小的那个。能改数据文件的人就能这样做。做完请马上用这个名字登录，
改一个口令。

退出状态：0 给了；2 没有给。
</translation>
    </message>
    <message>
        <source>the numbers of %1 run out: there are no more than %2</source>
        <translation>%1 的编号用完了：最多到 %2</translation>
    </message>
    <message>
        <source>%1: nobody can log in under this name</source>
        <translation>%1：用这个名字登录不了</translation>
    </message>
    <message>
        <source>operator %1 (number %2) has both rights
WARNING: THE PASSWORD IS EMPTY NOW. Anybody can log in as %1; do it at once and set a password.
</source>
        <translation>操作员%1（编号 %2）有了两种权限
注意：现在口令是空的！谁都能用%1登录；请马上登录，改一个口令。
</translation>
    </message>
    <message>
        <source>give an operator all rights, when nobody has them</source>
        <translation>谁都没有权限时，给一个操作员全部权限</translation>
    </message>
    <message>
        <source>%1 in %2 row(s): %3</source>
        <translation>%1，共 %2 行：%3</translation>
    </message>
    <message>
        <source>%1.%2: number %3 of %4 has been given out</source>
        <translation>%1.%2：编号已经用到 %3，最多到 %4</translation>
    </message>
    <message>
        <source>%1.%2 holds no 16-bit number</source>
        <translation>%1.%2 里的不是 -32768 到 32767 的整数</translation>
    </message>
    <message>
        <source>%1.%2 points nowhere (%3; see smsdb tidy)</source>
        <translation>%1.%2 指的 %3 已经没有了（可以用 smsdb tidy 清掉）</translation>
    </message>
    <message>
        <source>%1.%2 points nowhere (%3)</source>
        <translation>%1.%2 指的 %3 已经没有了</translation>
    </message>
    <message>
        <source>%1.mobile is not as it is dialled (see smsdb tidy --numbers)</source>
        <translation>%1.mobile 写得不合拨号的样子（可以用 smsdb tidy --numbers 改好）</translation>
    </message>
    <message>
        <source>%1.mobile is no number that can be dialled</source>
        <translation>%1.mobile 不是能拨的号码</translation>
    </message>
    <message>
        <source>nobody can manage the operators (see smsdb grant)</source>
        <translation>谁都不能管理操作员了（请看 smsdb grant）</translation>
    </message>
    <message>
        <source>parameters: holds %1 rows where there must be one</source>
        <translation>parameters（短信发送参数）有 %1 行，应该正好一行</translation>
    </message>
    <message>
        <source>parameters.port is empty</source>
        <translation>parameters.port（网关的端口）是空的</translation>
    </message>
    <message>
        <source>%1: the list %2 is not defined</source>
        <translation>%1：没有列表 %2 的定义</translation>
    </message>
    <message>
        <source>damaged: %1</source>
        <translation>文件损坏：%1</translation>
    </message>
    <message>
        <source>it holds no table of this system</source>
        <translation>里面没有本系统的表</translation>
    </message>
    <message>
        <source>note: %1
</source>
        <translation>说明：%1
</translation>
    </message>
    <message>
        <source>finding: %1
</source>
        <translation>问题：%1
</translation>
    </message>
    <message>
        <source>Usage: smsdb COMMAND …

Looks after the database of an office.

</source>
        <translation>用法：smsdb 命令 …

保养本系统的数据文件。

</translation>
    </message>
    <message>
        <source>
smsdb COMMAND --help tells how a command is used; smsdb --version the version.
</source>
        <translation>
smsdb 命令 --help 说明这条命令怎么用；smsdb --version 显示版本。
</translation>
    </message>
    <message>
        <source>smsdb %1
</source>
        <translation>smsdb %1
</translation>
    </message>
    <message>
        <source>%1: cannot be written: %2</source>
        <translation>%1：写不进去：%2</translation>
    </message>
    <message>
        <source>%1: is in the way; it belongs to a database that is gone</source>
        <translation>%1：挡住了；它是一个已经不在的数据文件留下的</translation>
    </message>
    <message>
        <source>%1: exists already</source>
        <translation>%1：已经有这个文件了</translation>
    </message>
    <message>
        <source>another run is writing it</source>
        <translation>另一条命令正在写它</translation>
    </message>
    <message>
        <source>no file can be made in its folder</source>
        <translation>在它的文件夹里建不了文件</translation>
    </message>
    <message>
        <source>only its owner can replace it</source>
        <translation>只有它的主人才能换掉它</translation>
    </message>
    <message>
        <source>%1: is no database of this system: it has no table %2</source>
        <translation>%1：不是本系统的数据文件：没有表 %2</translation>
    </message>
    <message>
        <source>%1: is of an older version, %2 and not %3; upgrade it first (see smsdb upgrade --help)</source>
        <translation>%1：是旧版本的（%2，现在是 %3），请先升级（请看 smsdb upgrade --help）</translation>
    </message>
    <message>
        <source>%1: is of an older version, %2 and not %3 (see smsdb upgrade --help)</source>
        <translation>%1：是旧版本的（%2，现在是 %3），照样能读（要升级请看 smsdb upgrade --help）</translation>
    </message>
    <message>
        <source>Usage: smsdb import [--charset NAME] OLD.mdb NEW

Makes the database NEW from OLD.mdb, a database of the old format (Jet 3 or Jet 4, as Access 97 to 2003
write them). OLD.mdb is only read. NEW must not exist; it appears when everything is in it.

  --charset NAME   what the texts of a Jet 3 file are written in (default: GBK, which is code page 936)

Tables and columns are matched by name without regard to case. A table that is missing or empty in
OLD.mdb gets what a fresh database holds: the functions, the gateway parameters, the first operator
with an empty password. Numbers of rows stay, and new rows are numbered on from the highest. Moments
become yyyy/mm/dd hh:mm:ss, Yes/No becomes -1/0 (1/0 for messages read). The definition of a list takes
the place of the delivered one when it is one of this system&apos;s lists and has a column.

What cannot be carried is reported, a line each with the numbers of the rows (rows without a number
are counted as they stand in the file):
  - a row whose number is above 32767, missing, or given twice is left out
  - a group&apos;s member or a right whose numbers do not fit is left out
  - any other number that does not fit is carried as 0, a date that cannot be read as empty
  - a message without a readable mark of having been sent counts as sent
  - a column of a list that shows passwords is left out
  - tables and columns that only one of the two systems has are named
Then comes what smsdb check finds in NEW; a text with an apostrophe is carried as it is, for one.

A file in which rows or tables are damaged is refused as a whole: let Access compact and repair it, or use
an older copy. Where a single text is damaged, the row is carried without it, and that is reported: an
older copy may still have it. What was changed within a text cannot be noticed.

Exit status: 0 all carried, and no findings; 1 made, with losses or findings; 2 not made.
</source>
        <translation>用法：smsdb import [--charset 编码] 老文件.mdb 新文件

从老系统的数据文件“老文件.mdb”（Jet 3 或 Jet 4，就是 Access 97 到 2003 存的）导入，做成“新文件”。老文件只读，
一个字也不改。不能已经有新文件；内容齐了它才出现。

  --charset 编码   Jet 3 的老文件里的文字是什么编码（不写就是 GBK，也就是代码页 936）

表和列按名字对上，不分大小写。老文件里没有或者空着的表，用新建的数据文件自带的内容：功能、网关的参数、
第一个操作员（口令是空的）。编号不变，新的接着最大的往下编。时间写成 年/月/日 时:分:秒，是/否写成 -1/0
（短信看过没有写成 1/0）。列表的定义，是本系统的列表、又有列的，代替自带的。

搬不过来的，一行一样，写明行的编号（没有编号的行按文件里的顺序数）：
  - 编号超过 32767、没有编号、编号重复的行不搬
  - 分组或权限里的编号不对的，这一行不搬
  - 别的数字不对写成 0，读不懂的日期留空
  - 看不出发过没有的短信，算作已经发送
  - 列表里显示口令的那一列不搬
  - 只有一边有的表和列，列出名字
后面是 smsdb check 对新文件会说的话；比如有英文单引号的内容照搬。

有行或者表损坏的文件，整个不导入：请用 Access 压缩和修复数据库，或者换一份更早的备份。只坏了一处文字的，
这一行照搬，那一处空着，并且说出来：更早的备份里可能还有。文字里面被改掉的字看不出来。

退出状态：0 全搬过来了，没有问题；1 做好了，有没搬的或者有问题；2 没有做。
</translation>
    </message>
    <message>
        <source>the old database is damaged: it has two tables %1</source>
        <translation>老数据文件已经损坏：有两张表都叫 %1</translation>
    </message>
    <message>
        <source>table %1</source>
        <translation>表 %1</translation>
    </message>
    <message>
        <source>this system has no such table (%1 row(s))</source>
        <translation>本系统没有这张表（%1 行）</translation>
    </message>
    <message>
        <source>the old database has none</source>
        <translation>老数据文件里没有</translation>
    </message>
    <message>
        <source>table</source>
        <translation>表</translation>
    </message>
    <message>
        <source>read</source>
        <translation>读了</translation>
    </message>
    <message>
        <source>written</source>
        <translation>写了</translation>
    </message>
    <message>
        <source>none</source>
        <translation>没有</translation>
    </message>
    <message>
        <source>fresh</source>
        <translation>自带</translation>
    </message>
    <message>
        <source>%1 message(s) wait to be sent; the next client that starts with the gateway sends those that are due
</source>
        <translation>有 %1 条短信待发送；下次打开程序、网关又在运行时，到了时间的就会发出去
</translation>
    </message>
    <message>
        <source>imported %1 to %2
</source>
        <translation>已把 %1 导入到 %2
</translation>
    </message>
    <message>
        <source>make a database from one of the old format</source>
        <translation>从老系统的数据文件导入</translation>
    </message>
    <message>
        <source>Usage: smsdb import OLD.mdb NEW

Makes a database from one of the old format. This build of smsdb cannot do it: libmdb, which reads the
old format, was not there when it was built.
</source>
        <translation>用法：smsdb import 老文件.mdb 新文件

从老系统的数据文件导入。这个 smsdb 做不了：编译它的时候没有读老格式用的 libmdb。
</translation>
    </message>
    <message>
        <source>import: this build cannot read the old format, for want of libmdb</source>
        <translation>import：这个 smsdb 读不了老格式：编译时没有 libmdb</translation>
    </message>
    <message>
        <source>make a database from one of the old format (not in this build)</source>
        <translation>从老系统的数据文件导入（这个 smsdb 做不了）</translation>
    </message>
    <message>
        <source>it does not tell what tables it holds</source>
        <translation>看不出里面有哪些表</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>没有这个文件</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>打不开：%1</translation>
    </message>
    <message>
        <source>has a newer format than that of an .mdb file; save it as one first</source>
        <translation>格式比 .mdb 新；请先另存为 .mdb 文件</translation>
    </message>
    <message>
        <source>is no database of the old format</source>
        <translation>不是老系统的数据文件</translation>
    </message>
    <message>
        <source>its end is missing</source>
        <translation>缺了末尾</translation>
    </message>
    <message>
        <source>its head cannot be read</source>
        <translation>文件头读不出来</translation>
    </message>
    <message>
        <source>its columns cannot be read</source>
        <translation>它的列读不出来</translation>
    </message>
    <message>
        <source>its pages cannot be found</source>
        <translation>找不到它的内容</translation>
    </message>
    <message>
        <source>table %1: %2</source>
        <translation>表 %1：%2</translation>
    </message>
    <message>
        <source>a row cannot be found</source>
        <translation>有一行找不到</translation>
    </message>
    <message>
        <source>a row that was moved cannot be found</source>
        <translation>有一行挪过地方，找不到了</translation>
    </message>
    <message>
        <source>%1 row(s) where there should be %2</source>
        <translation>有 %1 行，应该是 %2 行</translation>
    </message>
    <message>
        <source>a row cannot be read</source>
        <translation>有一行读不出来</translation>
    </message>
    <message>
        <source>a row holds too few values</source>
        <translation>有一行内容不全</translation>
    </message>
    <message>
        <source>%1 shows passwords, which no list does</source>
        <translation>列表%1会显示口令，这一列不搬</translation>
    </message>
    <message>
        <source>%1 is no list of this system</source>
        <translation>%1不是本系统的列表</translation>
    </message>
    <message>
        <source>%1 has no columns; the delivered definition stays</source>
        <translation>列表%1没有列；仍用自带的样子</translation>
    </message>
    <message>
        <source>%1 is defined already</source>
        <translation>列表%1前面已经定义过</translation>
    </message>
    <message>
        <source>%1: its definition is not carried</source>
        <translation>列表%1的定义没有搬，这一列也不搬</translation>
    </message>
    <message>
        <source>not carried: %1%2: %3</source>
        <translation>没有搬过来：%1%2：%3</translation>
    </message>
    <message>
        <source>Usage: smsdb read-old OLD.mdb --charset NAME

What smsdb import runs to read the old file, so that a damaged one ends this process and no other.
Writes a line of JSON a record: [&quot;table&quot;, its name, its columns …], [&quot;row&quot;, its values …], and at the
end [&quot;end&quot;], or [&quot;damaged&quot;, how] or [&quot;failed&quot;, the reason].
</source>
        <translation>用法：smsdb read-old 老文件.mdb --charset 编码

smsdb import 用它来读老文件：文件坏了，只结束这一个进程。每条记录写一行 JSON：[&quot;table&quot;, 表名, 列名 …]、
[&quot;row&quot;, 值 …]，最后是 [&quot;end&quot;]，或者 [&quot;damaged&quot;, 怎么坏的]、[&quot;failed&quot;, 原因]。
</translation>
    </message>
    <message>
        <source>nobody listens</source>
        <translation>没有人接收</translation>
    </message>
    <message>
        <source>%1: is damaged: %2 (see smsdb import --help)</source>
        <translation>%1：已经损坏：%2（请看 smsdb import --help）</translation>
    </message>
    <message>
        <source>reading it gives no sense</source>
        <translation>读出来的内容不通</translation>
    </message>
    <message>
        <source>reading it came to no good end</source>
        <translation>读到一半读不下去了</translation>
    </message>
    <message>
        <source>column %1.%2</source>
        <translation>列 %1.%2</translation>
    </message>
    <message>
        <source>this system has no such column</source>
        <translation>本系统没有这一列</translation>
    </message>
    <message>
        <source>it has no number</source>
        <translation>没有编号</translation>
    </message>
    <message>
        <source>its number is not one of those that a screen can hold, up to %1</source>
        <translation>编号不在 1 到 %1 里，程序用不了</translation>
    </message>
    <message>
        <source>its number is given twice</source>
        <translation>编号重复</translation>
    </message>
    <message>
        <source>only one row is ever used</source>
        <translation>只用得着一行</translation>
    </message>
    <message>
        <source>%1 is neither yes nor no</source>
        <translation>%1看不出是“是”还是“否”</translation>
    </message>
    <message>
        <source>%1 is no whole number from -32768 to 32767</source>
        <translation>%1不是 -32768 到 32767 的整数</translation>
    </message>
    <message>
        <source>%1 is no date</source>
        <translation>%1不是日期</translation>
    </message>
    <message>
        <source>some of its characters cannot be read</source>
        <translation>有些字读不出来</translation>
    </message>
    <message>
        <source>is damaged there, an older copy may still have it</source>
        <translation>在老文件里坏了，更早的备份里可能还有</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>读不出来</translation>
    </message>
    <message>
        <source>Usage: smsdb renumber FILE

Closes up the numbers of what nothing points at in the database FILE, for when they run out: messages sent
and received, group sends, memberships, rights and the operation log are numbered from 1 in their order,
new ones on from there. Nothing is taken out. Then the file gives back the room that it does not need.
smsdb archive does the same once it has moved old messages out. The numbers of customers, classes, phrases
and operators stay: rows of other tables name them.

Every client must be closed: the command refuses to work while another program has FILE open, and nobody
can open it until it is done. Make a backup first (smsdb backup).

Exit status: 0 done; 2 not done, and every number is as it was.
</source>
        <translation>用法：smsdb renumber 数据文件

编号快用完时，把数据文件里没有别处指着的编号重排：发送和收到的短信、群发、分组、权限、操作日志按原来的顺序从 1
编起，新的接着往下编。什么都不移走。文件随后变小。smsdb archive 移走旧短信以后也这样做。客户、分类、常用语和
操作员的编号不变：别的表里提到它们。

请先关掉所有的程序：还有程序开着数据文件，这条命令就不做；它做完以前，谁也打不开数据文件。请先做备份
（smsdb backup）。

退出状态：0 做好了；2 没有做，编号都没有变。
</translation>
    </message>
    <message>
        <source>close up numbers that run out</source>
        <translation>编号快用完时，从 1 重排</translation>
    </message>
    <message>
        <source>Usage: smsdb restore BACKUP FILE

Puts what the backup BACKUP holds in the place of the database FILE, and makes FILE where there is none.
Every client must be closed: the command refuses to work while another program has FILE open. Where FILE
is a link, what it leads to is replaced. Owner and permissions stay as they are.

What is replaced is kept beside it as FILE.before-restore, until the next time; to undo a restore, restore
that. The new file is checked before it takes FILE&apos;s place. Whenever the command is interrupted, FILE is
the old one or the whole new one; then run it again.

A BACKUP that is damaged, holds not all tables of this system or was made by a newer version is refused.
One of an older version is restored as it is; the next client that starts upgrades it (see smsdb upgrade).

Exit status: 0 restored; 2 not restored, and FILE is as it was.
</source>
        <translation>用法：smsdb restore 备份 数据文件

把备份里的内容放回数据文件；没有数据文件就建一个。请先关掉所有的程序：还有程序开着数据文件，这条命令就不做。
数据文件是链接的，换的是链接指着的那个文件。主人和权限不变。

换下来的留在旁边，叫 数据文件.before-restore，只留最近一次的；恢复错了，就用它再恢复一次。新的文件检查过才换上去。
命令不论什么时候断了，数据文件要么是旧的，要么是完整的新的；再运行一次就行。

备份已经损坏、缺了本系统的表、是更新的版本做的，就不恢复。旧版本的照原样恢复，下次打开程序时升级
（请看 smsdb upgrade）。

退出状态：0 恢复好了；2 没有恢复，数据文件和原来一样。
</translation>
    </message>
    <message>
        <source>%1: cannot be kept as %2: %3</source>
        <translation>%1：不能留作 %2：%3</translation>
    </message>
    <message>
        <source>what was there is now %1.before-restore
</source>
        <translation>原来的文件现在叫 %1.before-restore
</translation>
    </message>
    <message>
        <source>%1: is the database itself</source>
        <translation>%1：就是这个数据文件本身</translation>
    </message>
    <message>
        <source>restored %1 from %2
</source>
        <translation>已恢复 %1，用的备份是 %2
</translation>
    </message>
    <message>
        <source>put a backup in the place of a database</source>
        <translation>用备份恢复数据文件</translation>
    </message>
    <message>
        <source>users.username is Null (the operator cannot log in)</source>
        <translation>users.username 是空值（这个操作员登录不了）</translation>
    </message>
    <message>
        <source>users.password is Null (the operator cannot log in)</source>
        <translation>users.password 是空值（这个操作员登录不了）</translation>
    </message>
    <message>
        <source>an apostrophe in users (the operator cannot log in)</source>
        <translation>users 里有英文单引号（这个操作员登录不了）</translation>
    </message>
    <message>
        <source>an apostrophe in customer.mobile (no group send gets beyond it)</source>
        <translation>customer.mobile 里有英文单引号（群发到他这里就停住）</translation>
    </message>
    <message>
        <source>an apostrophe in customer (it cannot be saved)</source>
        <translation>customer 里有英文单引号（这位客户改了存不上）</translation>
    </message>
    <message>
        <source>an apostrophe in cusclass.cname (it cannot be saved)</source>
        <translation>cusclass.cname 里有英文单引号（这个分类改了存不上）</translation>
    </message>
    <message>
        <source>an apostrophe in smsmodels.text (no message can be made of it)</source>
        <translation>smsmodels.text 里有英文单引号（这条常用语不能用来发短信）</translation>
    </message>
    <message>
        <source>an apostrophe in a message of sendsms that waits (it cannot be changed)</source>
        <translation>sendsms 里待发送的短信有英文单引号（这条短信改不了）</translation>
    </message>
    <message>
        <source>view</source>
        <translation>视图</translation>
    </message>
    <message>
        <source>index</source>
        <translation>索引</translation>
    </message>
    <message>
        <source>trigger</source>
        <translation>触发器</translation>
    </message>
    <message>
        <source>is of an older version, %1 and not %2 (see smsdb upgrade)</source>
        <translation>是旧版本的（%1，现在是 %2），请用 smsdb upgrade 升级</translation>
    </message>
    <message>
        <source>is of a newer version, %1 and not %2: it needs a newer smsdb</source>
        <translation>是更新的版本的（%1，这里只认识到 %2），要用新的 smsdb</translation>
    </message>
    <message>
        <source>%1 %2 cannot be read: %3</source>
        <translation>%1 %2 读不出来：%3</translation>
    </message>
    <message>
        <source>column %1.%2 is missing</source>
        <translation>少了列 %1.%2</translation>
    </message>
    <message>
        <source>%1 %2 is missing</source>
        <translation>少了%1 %2</translation>
    </message>
    <message>
        <source>%1 %2 is defined otherwise than in a fresh database</source>
        <translation>%1 %2 的定义和新建的数据文件不一样</translation>
    </message>
    <message>
        <source>%1 %2 is none of this system&apos;s</source>
        <translation>%1 %2 不是本系统的</translation>
    </message>
    <message>
        <source>%1: the headings %2 and %3 mean the same</source>
        <translation>%1：列名%2和%3是一个意思</translation>
    </message>
    <message>
        <source>column %1 is not used</source>
        <translation>列%1用不着</translation>
    </message>
    <message>
        <source>%1: no heading names the mobile number (see smsdb import-customers --help): %2</source>
        <translation>%1：没有一个列名是手机（请看 smsdb import-customers --help）：%2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>no mobile number</source>
        <translation>没有手机号</translation>
    </message>
    <message>
        <source>the spreadsheet has rounded the mobile number to %1; make its column text</source>
        <translation>电子表格把手机号变成了%1；请把这一列设成“文本”</translation>
    </message>
    <message>
        <source>no mobile number of 3 to 20 digits but %1</source>
        <translation>不是 3 到 20 位的号码，而是%1</translation>
    </message>
    <message>
        <source>the client cannot save a text with an apostrophe: %1</source>
        <translation>里面有英文单引号，在程序里改了存不上：%1</translation>
    </message>
    <message>
        <source>line breaks become blanks: %1</source>
        <translation>换行变成了空格：%1</translation>
    </message>
    <message>
        <source>left out: it has more fields than there are headings</source>
        <translation>没有导入：格子比列名多</translation>
    </message>
    <message>
        <source>column %1 is not used: it has no heading</source>
        <translation>第 %1 列用不着：它没有列名</translation>
    </message>
    <message>
        <source>left out: %1</source>
        <translation>没有导入：%1</translation>
    </message>
    <message>
        <source>Usage: smsdb export-customers FILE CUSTOMERS.csv

Writes all customers of the database FILE to a new file for a spreadsheet, also while clients are working
in it: name, mobile, sex, birthday, telephone and remark, in the order of their numbers. CUSTOMERS.csv is
UTF-8 with a byte order mark, readable by its owner alone. It must not exist.

A text that begins with = + - @ (wide ones too), a tab, a line break or an apostrophe gets an apostrophe
before it, so that no spreadsheet takes it for a formula; smsdb import-customers takes it away again.

Exit status: 0 written; 2 not written.
</source>
        <translation>用法：smsdb export-customers 数据文件 客户.csv

把数据文件里的全部客户写成一个新的电子表格文件，程序开着也可以做：客户名称、手机、性别、生日、电话、备注，
按编号的顺序。客户.csv 是带标记的 UTF-8，只有主人能读。不能已经有这个文件。

以 = + - @（全角的也算）、制表符、换行或英文单引号开头的内容，前面加一个英文单引号，免得电子表格把它当成公式；
smsdb import-customers 会把它去掉。

退出状态：0 写好了；2 没有写。
</translation>
    </message>
    <message>
        <source>wrote %1 customer(s) to %2
</source>
        <translation>已把 %1 位客户写到 %2
</translation>
    </message>
    <message>
        <source>write the customers to a file for a spreadsheet</source>
        <translation>把客户写成一个电子表格文件</translation>
    </message>
    <message>
        <source>Usage: smsdb import-customers [--dry-run] [--class NAME] [--duplicates WAY] [--charset NAME]
                              CUSTOMERS.csv FILE

Puts the customers of a spreadsheet into the database FILE, all of them at once, also while clients are
working in it. Make a backup first (smsdb backup).

CUSTOMERS.csv is what a spreadsheet saves as CSV or Unicode text: UTF-8, UTF-16 or GB18030; commas,
semicolons or tabs. Its first line names the columns, in any order; only the mobile number has to be there:

  客户名称 姓名 联系人 name      手机 手机号 手机号码 mobile     性别 sex gender
  生日 出生日期 birth birthday   电话 座机 联系电话 phone tel    备注 说明 memo notes

or the same in traditional characters. A mobile number is stored as it is dialled: without blanks, hyphens
and brackets, with plain digits, without +86, 0086 or 86 before it; another country&apos;s keeps its +.

  --dry-run          tells what would happen, and changes nothing
  --class NAME       puts the customers that are added or updated into this class; makes it if there is none
  --duplicates WAY   what becomes of a mobile number that a customer has already, or an earlier line:
                     skip it (the default), update that customer (empty fields leave what is there, and the
                     number stays as it is; of several with that number the first), or add one more. It is
                     the same number however it is written.
  --charset NAME     what CUSTOMERS.csv is written in, such as Big5 or ISO-8859-1. What is neither UTF-8 nor
                     UTF-16 is taken for GB18030 otherwise, and that is told.

Reported, a line each: lines left out because their mobile number is none of 3 to 20 digits, columns not
used, duplicates, and texts with an apostrophe. The client cannot save a customer with an apostrophe until
it is taken out. An apostrophe at the very beginning of a field is the mark of a text and does not count,
nor does =&quot;…&quot; around one.

Exit status: 0 every line is in; 1 done, with a report; 2 nothing done.
</source>
        <translation>用法：smsdb import-customers [--dry-run] [--class 分类] [--duplicates 办法] [--charset 编码]
                              客户.csv 数据文件

把电子表格里的客户一次全部导入数据文件，程序开着也可以做。请先做备份（smsdb backup）。

客户.csv 是电子表格另存的 CSV 或 Unicode 文本：UTF-8、UTF-16 或 GB18030；用逗号、分号或制表符隔开。
第一行写列名，顺序不限；只有手机一定要有：

  客户名称 姓名 联系人 name      手机 手机号 手机号码 mobile     性别 sex gender
  生日 出生日期 birth birthday   电话 座机 联系电话 phone tel    备注 说明 memo notes

繁体的列名也行。手机号按拨号的样子存：空格、横线、括号去掉，全角数字变成半角，前面的 +86、0086、86 去掉；
别的国家的号码留着 +。

  --dry-run          只说会怎么做，什么都不改
  --class 分类       加进来的和更新的客户都放进这个分类；没有这个分类就建一个
  --duplicates 办法  手机号已经有客户用了，或者前面的行里有了，怎么办：skip 跳过（不写就是它）；update 更新
                     那位客户（空着的格子不动，号码也不动；几位客户同号的，更新第一位）；add 再加一位。
                     号码写法不同也算同一个。
  --charset 编码     客户.csv 是什么编码，比如 Big5 或 ISO-8859-1。不写的话，不是 UTF-8 也不是 UTF-16 的
                     就按 GB18030 读，并且说出来。

一行一样地列出来：手机不是 3 到 20 位号码、没有导入的行，用不着的列，重复的手机号，有英文单引号的内容。
有英文单引号的客户，在程序里要先去掉它才存得上。格子最前面的英文单引号是“文本”的记号，不算；
内容外面套的 =&quot;…&quot; 也不算。

退出状态：0 每一行都导入了；1 做好了，列出了一些东西；2 什么都没有做。
</translation>
    </message>
    <message>
        <source>class %1 is new</source>
        <translation>新建了分类%1</translation>
    </message>
    <message>
        <source>the numbers of %1 run out at %2: no more than %3 new one(s) fit; nothing is imported</source>
        <translation>%1 的编号最多到 %2：只放得下 %3 个新的；一个也没有导入</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>跳过</translation>
    </message>
    <message>
        <source>updated</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>added again</source>
        <translation>又加了一位</translation>
    </message>
    <message>
        <source>line %1: %2: customer %3 has the mobile number %4</source>
        <translation>第 %1 行：%2：%3 号客户已经有手机号%4</translation>
    </message>
    <message>
        <source>%1 customer(s) added, %2 updated, %3 skipped
</source>
        <translation>加了 %1 位客户，更新 %2 位，跳过 %3 位
</translation>
    </message>
    <message>
        <source>--duplicates %1: expected skip, update or add</source>
        <translation>--duplicates %1：只能写 skip、update 或 add</translation>
    </message>
    <message>
        <source>--class: a class has a name of 1 to %1 characters, without an apostrophe</source>
        <translation>--class：分类名要有 1 到 %1 个字，不能有英文单引号</translation>
    </message>
    <message>
        <source>%1: is too large for a list of customers</source>
        <translation>%1：太大了，不像是客户名单</translation>
    </message>
    <message>
        <source>taken for GB18030 (see --charset)
</source>
        <translation>按简体中文（GB18030）读的（请看 --charset）
</translation>
    </message>
    <message>
        <source>put the customers of a spreadsheet into a database</source>
        <translation>把电子表格里的客户导入数据文件</translation>
    </message>
    <message>
        <source>%1: line %2 is not in UTF-8 as others are; save the file anew, all in one encoding</source>
        <translation>%1：第 %2 行不像别的行那样是 UTF-8；请把整个文件用同一种编码重新保存</translation>
    </message>
    <message>
        <source>%1: is no text in %2; save it as CSV</source>
        <translation>%1：不是 %2 的文本；请另存为 CSV</translation>
    </message>
    <message>
        <source>UTF-8, UTF-16 or GB18030</source>
        <translation>UTF-8、UTF-16 或 GB18030</translation>
    </message>
    <message>
        <source>%1: is empty</source>
        <translation>%1：是空的</translation>
    </message>
    <message>
        <source>%1: line %2: a quotation mark stands where none belongs, or one is missing</source>
        <translation>%1：第 %2 行：引号的位置不对，或者少了一个</translation>
    </message>
    <message>
        <source>Usage: smsdb tidy [--numbers] [--dry-run] FILE

Takes out of the database FILE what deleting leaves behind and no screen shows: rights of operators, and
memberships of customers or classes, that are not there. Each is told, a line each, before it goes. Also
while clients are working in FILE. Make a backup first (smsdb backup).

  --numbers   instead puts telephone numbers into the form in which they are dialled: without blanks,
              hyphens and brackets, with plain digits, without +86, 0086 or 86 before a mobile number. Only
              then a message goes out right and an answer is known as its customer&apos;s. Changed, after both
              forms are told, are the mobile numbers of customers, of messages that wait to be sent and of
              messages received. What is no number of 3 to 20 digits then is told and stays.
  --dry-run   tells what would happen, and changes nothing

Exit status: 0 done, or nothing to do; 2 nothing done.
</source>
        <translation>用法：smsdb tidy [--numbers] [--dry-run] 数据文件

清掉删除以后剩下来、哪里都不显示的东西：操作员已经没有了的权限，客户或者分类已经没有了的分组。清掉以前一行一样地
列出来。程序开着也可以做。请先做备份（smsdb backup）。

  --numbers   不清东西，把电话号码改成拨号的样子：去掉空格、横线和括号，全角数字变成半角，手机号前面的
              +86、0086、86 去掉。这样短信才发得对，回的短信才认得出是哪位客户。改的是客户的手机、
              待发短信的手机和收到的短信的号码，改以前把两种写法都列出来。去掉这些以后还不是 3 到 20 位
              号码的，列出来，不改。
  --dry-run   只说会怎么做，什么都不改

退出状态：0 做好了，或者没有要做的；2 什么都没有做。
</translation>
    </message>
    <message>
        <source>%1 %2: taken out: there is no %3 %4
</source>
        <translation>%1 %2：已清掉：%3 %4 已经没有了
</translation>
    </message>
    <message>
        <source>%1 %2: %3 is no number and stays
</source>
        <translation>%1 %2：%3不是号码，没有改
</translation>
    </message>
    <message>
        <source>%1 %2: %3 becomes %4
</source>
        <translation>%1 %2：%3改成 %4
</translation>
    </message>
    <message>
        <source>dry run, nothing is changed:
</source>
        <translation>只是试一遍，什么都没有改：
</translation>
    </message>
    <message>
        <source>nothing to tidy
</source>
        <translation>没有要整理的
</translation>
    </message>
    <message>
        <source>take out what deleting leaves, or mend numbers</source>
        <translation>清掉删除后剩下的东西，或者改好号码</translation>
    </message>
    <message>
        <source>Usage: smsdb upgrade FILE

Brings the database FILE of an older version of this system up to the version of this one, as a client does
when it starts, and tells from which version to which. FILE as it was is kept beside it as
FILE-before-step-N, where N is the first version that it lacked; an older copy of that kind goes.

Every client must be closed: the command refuses to work while another program has FILE open. If it is
interrupted, FILE is the old one or a whole newer one; then run it again. A FILE of a newer version is
refused.

The commands that only read (check, backup, export-customers, and restore its backup) work with an older
version too and say so; those that write refuse it.

Exit status: 0 upgraded, or nothing to do; 2 not upgraded.
</source>
        <translation>用法：smsdb upgrade 数据文件

把旧版本的数据文件升级到现在的版本，和打开程序时自动做的一样，并且说从哪个版本升到哪个版本。升级前的样子留在旁边，
叫 数据文件-before-step-N，N 是它缺的第一个版本；以前留下的这种文件会去掉。

请先关掉所有的程序：还有程序开着数据文件，这条命令就不做。命令中途断了，数据文件要么是旧的，要么是完整的新一些的；
再运行一次就行。更新的版本的数据文件不动。

只读的命令（check、backup、export-customers，还有 restore 的备份）也能用旧版本的，会说一声；要改数据文件的命令
不做。

退出状态：0 升级好了，或者不用升级；2 没有升级。
</translation>
    </message>
    <message>
        <source>%1 is of version %2 already; nothing to upgrade
</source>
        <translation>%1 已经是版本 %2，不用升级
</translation>
    </message>
    <message>
        <source>upgraded %1 from version %2 to %3; as it was it is kept as %4
</source>
        <translation>已把 %1 从版本 %2 升级到 %3；升级前的样子留作 %4
</translation>
    </message>
    <message>
        <source>bring a database of an older version up to date</source>
        <translation>把旧版本的数据文件升级到现在的版本</translation>
    </message>
    <message>
        <source>the file stays as large as it is: %1</source>
        <translation>文件没有变小：%1</translation>
    </message>
    <message>
        <source>dry run, nothing is changed: %1</source>
        <translation>只是试一遍，什么都没有改：%1</translation>
    </message>
</context>
</TS>
