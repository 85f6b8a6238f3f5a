<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>QFile</name>
    <message>
        <source>Cannot open destination file: %1</source>
        <translation>保存先のファイルを開けません: %1</translation>
    </message>
    <message>
        <source>Cannot open for output: %1</source>
        <translation>書き込み用に開けません: %1</translation>
    </message>
    <message>
        <source>Error while renaming: %1</source>
        <translation>名前を変更できません: %1</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;「%1」という名前は使用できません。&lt;/b&gt;&lt;p&gt;名前を短くするか、記号を使わない別の名前にしてください。</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>No such file or directory</source>
        <translation>ファイルまたはフォルダがありません</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>ファイルへのアクセス権がありません</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>ディスクの空き容量がありません</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>開いているファイルが多すぎます</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>原因不明のエラーです</translation>
    </message>
    <message>
        <source>file to open is a directory</source>
        <translation>ファイルではなくフォルダです</translation>
    </message>
</context>
</TS>
