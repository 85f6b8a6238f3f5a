<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>ConfigDialog</name>
    <message>
        <source>환경설정</source>
        <translation>環境設定</translation>
    </message>
    <message>
        <source>회사정보</source>
        <translation>会社情報</translation>
    </message>
    <message>
        <source>회사명</source>
        <translation>会社名</translation>
    </message>
    <message>
        <source>판매처명</source>
        <translation>ショップ名</translation>
    </message>
    <message>
        <source>판매사이트</source>
        <translation>ショップURL</translation>
    </message>
    <message>
        <source>http://www.example.com</source>
        <translation>http://www.example.com</translation>
    </message>
    <message>
        <source>우편번호</source>
        <translation>郵便番号</translation>
    </message>
    <message>
        <source>999-9999; </source>
        <translation>;</translation>
    </message>
    <message>
        <source>###-####</source>
        <translation>###-####</translation>
    </message>
    <message>
        <source>주소</source>
        <translation>住所</translation>
    </message>
    <message>
        <source>전화번호</source>
        <translation>電話番号</translation>
    </message>
    <message>
        <source>99-0999-9999; </source>
        <translation>;</translation>
    </message>
    <message>
        <source>##-####-####</source>
        <translation>###-####-####</translation>
    </message>
    <message>
        <source>팩스번호</source>
        <translation>FAX番号</translation>
    </message>
    <message>
        <source>전자우편</source>
        <translation>メールアドレス</translation>
    </message>
    <message>
        <source>shop@example.com</source>
        <translation>shop@example.com</translation>
    </message>
    <message>
        <source>변환설정 관리</source>
        <translation>変換設定の管理</translation>
    </message>
    <message>
        <source>추가</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>새로운 설정을 추가합니다</source>
        <translation>新しい設定を追加します</translation>
    </message>
    <message>
        <source>변경</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>선택된 설정을 변경합니다</source>
        <translation>選択した設定を変更します</translation>
    </message>
    <message>
        <source>삭제</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>선택된 설정을 삭제합니다</source>
        <translation>選択した設定を削除します</translation>
    </message>
    <message>
        <source>확인</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>변경된 사항을 저장합니다</source>
        <translation>変更を保存します</translation>
    </message>
    <message>
        <source>취소</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>변경된 사항을 저장하지 않습니다</source>
        <translation>変更を保存しません</translation>
    </message>
</context>
<context>
    <name>ConversionRun</name>
    <message>
        <source>Checking all fields...</source>
        <translation>入力内容を確認しています...</translation>
    </message>
    <message>
        <source>Loading settings...</source>
        <translation>変換設定を読み込んでいます...</translation>
    </message>
    <message>
        <source>Processing input file(s)...</source>
        <translation>入力ファイルを処理しています...</translation>
    </message>
    <message>
        <source>Generating output file...</source>
        <translation>出力ファイルを作成しています...</translation>
    </message>
    <message>
        <source>Start converting...</source>
        <translation>変換を開始します...</translation>
    </message>
    <message>
        <source>Deleting duplication and merging items...</source>
        <translation>重複を削除し、項目を結合しています...</translation>
    </message>
    <message>
        <source>Creating PDF file...</source>
        <translation>明細書PDFを作成しています...</translation>
    </message>
    <message>
        <source>Saving PDF file...</source>
        <translation>明細書PDFを保存しています...</translation>
    </message>
    <message>
        <source>Converting succeeded.</source>
        <translation>変換が完了しました。</translation>
    </message>
    <message>
        <source>Input file is required.</source>
        <translation>入力ファイルを追加してください。</translation>
    </message>
    <message>
        <source>Output file is required.</source>
        <translation>出力ファイルを指定してください。</translation>
    </message>
    <message>
        <source>Choose a convert setting.</source>
        <translation>変換設定を選択してください。</translation>
    </message>
    <message>
        <source>There is no input file information in setting. Please check convert settings.</source>
        <translation>変換設定に入力フォーマットがありません。変換設定を確認してください。</translation>
    </message>
    <message>
        <source>Cannot open input file:
%1.</source>
        <translation>入力ファイルを開けません:
%1。</translation>
    </message>
    <message>
        <source>The file is too large</source>
        <translation>ファイルが大きすぎます</translation>
    </message>
    <message>
        <source>Input file dose not match with setting.
Please check the input file(s).</source>
        <translation>入力ファイルが変換設定の入力フォーマットと一致しません。
入力ファイルを確認してください。</translation>
    </message>
    <message>
        <source>Number of input files is not matched with setting.</source>
        <translation>入力ファイルの数が変換設定と異なります。入力フォーマットごとにファイルを1つずつ追加してください。</translation>
    </message>
    <message>
        <source>Cannot find proper source file.</source>
        <translation>入力フォーマットに合う入力ファイルが見つかりません。入力ファイルを確認してください。</translation>
    </message>
    <message>
        <source>Cannot open output file:
%1.</source>
        <translation>出力ファイルを開けません:
%1。</translation>
    </message>
    <message>
        <source>Cannot write output file:
%1.</source>
        <translation>出力ファイルに書き込めません:
%1。</translation>
    </message>
    <message>
        <source>Not enough memory for this conversion.
Please check the input file(s) and the matching keys of the setting.</source>
        <translation>変換に必要なメモリが足りません。
入力ファイルと変換設定の照合項目を確認してください。</translation>
    </message>
</context>
<context>
    <name>ConvertSettingDialog</name>
    <message>
        <source>변환설정</source>
        <translation>変換設定</translation>
    </message>
    <message>
        <source>설정 이름:</source>
        <translation>設定名:</translation>
    </message>
    <message>
        <source>현재 설정을 식별할 이름을 지정합니다</source>
        <translation>この設定を見分けるための名前を指定します</translation>
    </message>
    <message>
        <source>회사정보</source>
        <translation>会社情報</translation>
    </message>
    <message>
        <source>항목을 출력양식으로 드래그 하여 추가합니다</source>
        <translation>項目を出力フォーマットにドラッグして追加します</translation>
    </message>
    <message>
        <source>회사명</source>
        <translation>会社名</translation>
    </message>
    <message>
        <source>출력양식으로 드래그 하면 회사명이 추가됩니다</source>
        <translation>出力フォーマットにドラッグすると会社名が追加されます</translation>
    </message>
    <message>
        <source>판매처명</source>
        <translation>ショップ名</translation>
    </message>
    <message>
        <source>출력양식으로 드래그 하면 판매처명이 추가됩니다</source>
        <translation>出力フォーマットにドラッグするとショップ名が追加されます</translation>
    </message>
    <message>
        <source>판매사이트</source>
        <translation>ショップURL</translation>
    </message>
    <message>
        <source>출력양식으로 드래그 하면 판매사이트가 추가됩니다</source>
        <translation>出力フォーマットにドラッグするとショップURLが追加されます</translation>
    </message>
    <message>
        <source>우편번호</source>
        <translation>郵便番号</translation>
    </message>
    <message>
        <source>출력양식으로 드래그 하면 회사 우편번호가 추가됩니다</source>
        <translation>出力フォーマットにドラッグすると会社の郵便番号が追加されます</translation>
    </message>
    <message>
        <source>주소</source>
        <translation>住所</translation>
    </message>
    <message>
        <source>출력양식으로 드래그 하면 회사 주소가 추가됩니다</source>
        <translation>出力フォーマットにドラッグすると会社の住所が追加されます</translation>
    </message>
    <message>
        <source>전화번호</source>
        <translation>電話番号</translation>
    </message>
    <message>
        <source>출력양식으로 드래그 하면 회사 전화번호가 추가됩니다</source>
        <translation>出力フォーマットにドラッグすると会社の電話番号が追加されます</translation>
    </message>
    <message>
        <source>팩스번호</source>
        <translation>FAX番号</translation>
    </message>
    <message>
        <source>출력양식으로 드래그 하면 회사 팩스번호가 추가됩니다</source>
        <translation>出力フォーマットにドラッグすると会社のFAX番号が追加されます</translation>
    </message>
    <message>
        <source>전자우편</source>
        <translation>メールアドレス</translation>
    </message>
    <message>
        <source>출력양식으로 드래그 하면 회사 이메일주소가 추가됩니다</source>
        <translation>出力フォーマットにドラッグすると会社のメールアドレスが追加されます</translation>
    </message>
    <message>
        <source>입력양식</source>
        <translation>入力フォーマット</translation>
    </message>
    <message>
        <source>항목을 출력양식으로 드래그하여 추가합니다</source>
        <translation>項目を出力フォーマットにドラッグして追加します</translation>
    </message>
    <message>
        <source>선택된 양식파일의 첫 항목으로 이동합니다</source>
        <translation>選択したフォーマットの最初の項目に移動します</translation>
    </message>
    <message>
        <source>입력양식 추가</source>
        <translation>入力フォーマットを追加</translation>
    </message>
    <message>
        <source>입력될 양식을 파일에서 불러와 추가합니다</source>
        <translation>入力するファイルのフォーマットを読み込んで追加します</translation>
    </message>
    <message>
        <source>입력양식 비우기</source>
        <translation>入力フォーマットをクリア</translation>
    </message>
    <message>
        <source>입력양식을 초기화 합니다</source>
        <translation>入力フォーマットと出力項目をすべて削除します</translation>
    </message>
    <message>
        <source>출력양식</source>
        <translation>出力フォーマット</translation>
    </message>
    <message>
        <source>CSV 파일</source>
        <translation>CSVファイル</translation>
    </message>
    <message>
        <source>항목 추가</source>
        <translation>項目を追加</translation>
    </message>
    <message>
        <source>새로운 출력항목을 마지막에 추가합니다</source>
        <translation>新しい出力項目を最後に追加します</translation>
    </message>
    <message>
        <source>항목 삽입</source>
        <translation>項目を挿入</translation>
    </message>
    <message>
        <source>새로운 출력항목을 선택된 위치에 삽입합니다</source>
        <translation>新しい出力項目を選択した位置に挿入します</translation>
    </message>
    <message>
        <source>항목 삭제</source>
        <translation>項目を削除</translation>
    </message>
    <message>
        <source>선택된 항목을 삭제합니다</source>
        <translation>選択した項目を削除します</translation>
    </message>
    <message>
        <source>구매 명세서 생성</source>
        <translation>お買い上げ明細書を作成</translation>
    </message>
    <message>
        <source>구매 명세서 PDF파일을 생성합니다</source>
        <translation>お買い上げ明細書のPDFファイルを作成します</translation>
    </message>
    <message>
        <source>선택된 항목을 왼쪽으로 이동합니다</source>
        <translation>選択した項目を左に移動します</translation>
    </message>
    <message>
        <source>선택된 항목을 오른쪽으로 이동합니다</source>
        <translation>選択した項目を右に移動します</translation>
    </message>
    <message>
        <source>구매명세서</source>
        <translation>お買い上げ明細書</translation>
    </message>
    <message>
        <source>제목 :</source>
        <translation>タイトル :</translation>
    </message>
    <message>
        <source>명세서 상단에 출력될 제목을 지정합니다</source>
        <translation>明細書の上部に印刷するタイトルを指定します</translation>
    </message>
    <message>
        <source>글꼴 :</source>
        <translation>フォント :</translation>
    </message>
    <message>
        <source>명세서에 사용될 글꼴을 지정합니다.</source>
        <translation>明細書に使用するフォントを指定します。</translation>
    </message>
    <message>
        <source>회사정보 출력여부</source>
        <translation>印刷する会社情報</translation>
    </message>
    <message>
        <source>체크하여 회사명을 출력합니다.</source>
        <translation>チェックすると会社名を印刷します。</translation>
    </message>
    <message>
        <source>체크하여 판매처명을 출력합니다.</source>
        <translation>チェックするとショップ名を印刷します。</translation>
    </message>
    <message>
        <source>체크하여 판매사이트 주소를 출력합니다.</source>
        <translation>チェックするとショップURLを印刷します。</translation>
    </message>
    <message>
        <source>체크하여 우편번호를 출력합니다.</source>
        <translation>チェックすると郵便番号を印刷します。</translation>
    </message>
    <message>
        <source>체크하여 주소를 출력합니다.</source>
        <translation>チェックすると住所を印刷します。</translation>
    </message>
    <message>
        <source>체크하여 전화번호를 출력합니다.</source>
        <translation>チェックすると電話番号を印刷します。</translation>
    </message>
    <message>
        <source>체크하여 팩스번호를 출력합니다.</source>
        <translation>チェックするとFAX番号を印刷します。</translation>
    </message>
    <message>
        <source>체크하여 전자우편 주소를 출력합니다.</source>
        <translation>チェックするとメールアドレスを印刷します。</translation>
    </message>
    <message>
        <source>구매감사 문구 :</source>
        <translation>お礼の言葉 :</translation>
    </message>
    <message>
        <source>수신자 주소 아래에 표시될 구매감사 문구를 지정합니다</source>
        <translation>宛先の下に印刷するお礼の言葉を指定します</translation>
    </message>
    <message>
        <source>명세서 안내문구 :</source>
        <translation>明細書の案内文 :</translation>
    </message>
    <message>
        <source>명세서 관련 안내문구를 지정합니다</source>
        <translation>明細書についての案内文を指定します</translation>
    </message>
    <message>
        <source>저장</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>변경된 사항을 저장합니다</source>
        <translation>変更を保存します</translation>
    </message>
    <message>
        <source>취소</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>변경된 사항을 저장하지 않습니다</source>
        <translation>変更を保存しません</translation>
    </message>
    <message>
        <source>Load File(s)</source>
        <translation>ファイルの読み込み</translation>
    </message>
    <message>
        <source>CSV Files (*.csv);;All Files (*.*)</source>
        <translation>CSVファイル (*.csv);;すべてのファイル (*.*)</translation>
    </message>
    <message>
        <source>Cannot open file &apos;%1&apos;:
%2.</source>
        <translation>「%1」を開けません:
%2。</translation>
    </message>
    <message>
        <source>The file is too large</source>
        <translation>ファイルが大きすぎます</translation>
    </message>
    <message>
        <source>The first line has no headings</source>
        <translation>1行目に項目名がありません</translation>
    </message>
    <message>
        <source>Matching key was not selected</source>
        <translation>照合する項目を両方の一覧から1つずつ選択してください</translation>
    </message>
    <message>
        <source>Name field is required.</source>
        <translation>設定名を入力してください。</translation>
    </message>
    <message>
        <source>PDF title field is required.</source>
        <translation>お買い上げ明細書のタイトルを入力してください。</translation>
    </message>
</context>
<context>
    <name>Dialog</name>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
</context>
<context>
    <name>EditConditionsDialog</name>
    <message>
        <source>조건설정</source>
        <translation>条件設定</translation>
    </message>
    <message>
        <source>항목</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>삭제</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>선택된 조건을 삭제합니다</source>
        <translation>選択した条件を削除します</translation>
    </message>
    <message>
        <source>조건</source>
        <translation>条件</translation>
    </message>
    <message>
        <source>조건종류</source>
        <translation>条件の種類</translation>
    </message>
    <message>
        <source>문자열</source>
        <translation>文字列</translation>
    </message>
    <message>
        <source>숫자열</source>
        <translation>数値</translation>
    </message>
    <message>
        <source>검색</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>검색 방법을 선택합니다</source>
        <translation>検索方法を選択します</translation>
    </message>
    <message>
        <source>과 일치</source>
        <translation>と一致する</translation>
    </message>
    <message>
        <source>과 불일치</source>
        <translation>と一致しない</translation>
    </message>
    <message>
        <source>을 포함</source>
        <translation>を含む</translation>
    </message>
    <message>
        <source>을 미포함</source>
        <translation>を含まない</translation>
    </message>
    <message>
        <source>으로 시작</source>
        <translation>で始まる</translation>
    </message>
    <message>
        <source>으로 시작하지 않음</source>
        <translation>で始まらない</translation>
    </message>
    <message>
        <source>으로 끝</source>
        <translation>で終わる</translation>
    </message>
    <message>
        <source>으로 끝나지 않음</source>
        <translation>で終わらない</translation>
    </message>
    <message>
        <source>최소값</source>
        <translation>最小値</translation>
    </message>
    <message>
        <source>최소값의 제한 방법을 선택합니다</source>
        <translation>最小値の条件を選択します</translation>
    </message>
    <message>
        <source>초과</source>
        <translation>より大きい</translation>
    </message>
    <message>
        <source>이상</source>
        <translation>以上</translation>
    </message>
    <message>
        <source>제한없음</source>
        <translation>制限なし</translation>
    </message>
    <message>
        <source>최대값</source>
        <translation>最大値</translation>
    </message>
    <message>
        <source>최대값의 제한 방법을 선택합니다</source>
        <translation>最大値の条件を選択します</translation>
    </message>
    <message>
        <source>미만</source>
        <translation>未満</translation>
    </message>
    <message>
        <source>이하</source>
        <translation>以下</translation>
    </message>
    <message>
        <source>적용</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>설정된 조건을 저장합니다</source>
        <translation>設定した条件を保存します</translation>
    </message>
    <message>
        <source>*항목별 조건은 적용 버튼을 클릭하셔야 설정이 저장됩니다!</source>
        <translation>*条件は「適用」をクリックすると保存されます!</translation>
    </message>
    <message>
        <source>조건의 조합 방법을 선택합니다</source>
        <translation>条件の組み合わせ方を選択します</translation>
    </message>
    <message>
        <source>위 조건을 모두 만족시 출력</source>
        <translation>上の条件をすべて満たすとき出力</translation>
    </message>
    <message>
        <source>위 조건을 하나라도 만족시 출력</source>
        <translation>上の条件をひとつでも満たすとき出力</translation>
    </message>
    <message>
        <source>확인</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Setting has saved</source>
        <translation>条件を保存しました</translation>
    </message>
</context>
<context>
    <name>EditOutputItemsDialog</name>
    <message>
        <source>항목변경</source>
        <translation>項目の変更</translation>
    </message>
    <message>
        <source>드래그하여 순서변경이 가능합니다</source>
        <translation>ドラッグして順番を変更できます</translation>
    </message>
    <message>
        <source>선택된 항목을 제거합니다</source>
        <translation>選択した項目を取り除きます</translation>
    </message>
    <message>
        <source>항목사이 연결자 삽입</source>
        <translation>項目の間に区切り文字を入れる</translation>
    </message>
    <message>
        <source>항목들이 연결될 때 항목간에 설정된 문자를 삽입합니다</source>
        <translation>項目と項目の間に指定した文字を入れます</translation>
    </message>
    <message>
        <source>삽입될 문자를 지정합니다</source>
        <translation>間に入れる文字を指定します</translation>
    </message>
    <message>
        <source>확인</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>변경사항을 저장합니다</source>
        <translation>変更を保存します</translation>
    </message>
    <message>
        <source>취소</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>변경사항을 저장하지 않습니다</source>
        <translation>変更を保存しません</translation>
    </message>
</context>
<context>
    <name>InfoDialog</name>
    <message>
        <source>쿼린 컨버터 정보</source>
        <translation>クォリンコンバーターについて</translation>
    </message>
    <message>
        <source>프로그램 정보</source>
        <translation>プログラム情報</translation>
    </message>
    <message>
        <source>쿼린 컨버터</source>
        <translation>クォリンコンバーター</translation>
    </message>
    <message>
        <source>버전 :</source>
        <translation>バージョン :</translation>
    </message>
    <message>
        <source>제작일 : 2011-10-04</source>
        <translation>制作日 : 2011-10-04</translation>
    </message>
    <message>
        <source>만든 곳 : 벨모라 (Velmora)</source>
        <translation>制作元 : ベルモラ (Velmora)</translation>
    </message>
    <message>
        <source>이 프로그램의 모든 권리는 벨모라에 있습니다.</source>
        <translation>このプログラムのすべての権利はベルモラにあります。</translation>
    </message>
    <message>
        <source>저작권 정보</source>
        <translation>著作権情報</translation>
    </message>
    <message>
        <source>확인</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Version : </source>
        <translation>バージョン : </translation>
    </message>
    <message>
        <source>쿼린 컨버터 이용 안내

1. 이용 조건
쿼린 컨버터의 저작권은 벨모라(Velmora)에 있습니다. 누구나 무료로 설치하여 가게와 회사의 일에 쓸 수 있습니다. 고치지 않은 꾸러미 그대로라면 다른 사람에게 나누어 주어도 됩니다. 고친 프로그램을 나누어 주거나 프로그램을 팔려면 벨모라의 허락을 받아야 합니다. 자신이 쓰려고 프로그램을 고치는 일과, 바꾼 라이브러리의 잘못을 찾으려고 프로그램을 분석하는 일은 허락 없이 할 수 있습니다.
이 프로그램은 있는 그대로 제공하며, 법이 허용하는 한 어떤 보증도 하지 않습니다. 변환된 파일은 쓰기 전에 꼭 확인해 주십시오.

2. Qt 라이브러리
이 프로그램은 Qt 5.15 라이브러리(Qt Core, Gui, Widgets, Network)를 고치지 않고 동적으로 연결하여 씁니다. Qt의 저작권은 The Qt Company Ltd.와 그 밖의 기여자에게 있습니다. Qt는 GNU 약소 일반 공중 사용 허가서(LGPL) 제3판에 따라 쓸 수 있습니다. 허가서의 전문은 설치 폴더의 LGPL.TXT 파일에, 이 허가서가 바탕으로 삼는 GNU 일반 공중 사용 허가서(GPL) 제3판의 전문은 GPL.TXT 파일에 있습니다. Qt 라이브러리는 사용자가 다른 판으로 바꾸어 쓸 수 있습니다. languages 폴더의 파일에 함께 들어 있는 표준 단추와 파일 창의 번역은 Qt의 것으로, Qt 예외 1.0이 붙은 GPL 제3판에 따라 쓸 수 있습니다. Qt의 소스 코드는 Qt를 배포하는 곳(https://www.qt.io 또는 사용하는 운영체제의 배포처)에서 받을 수 있습니다.

3. 설치 꾸러미
Debian용 설치 꾸러미는 CMake에 들어 있는 CPack(BSD 3조항 허가서)으로 만듭니다. CPack의 코드는 프로그램에도 꾸러미에도 들어 있지 않습니다. Windows용은 설치 프로그램 없이 폴더로 제공합니다.

4. 아이콘
프로그램의 아이콘은 모두 이 프로그램을 위해 벨모라가 직접 그렸으며, 프로그램과 같은 조건으로 쓸 수 있습니다. 다른 곳의 아이콘 모음은 쓰지 않았습니다.</source>
        <translation>クォリンコンバーター ご利用案内

1. 利用条件
クォリンコンバーターの著作権はベルモラ(Velmora)にあります。どなたでも無料でインストールし、お店や会社の業務にお使いいただけます。変更を加えていないパッケージのままであれば、ほかの方に配布してもかまいません。変更したプログラムを配布する場合や、プログラムを販売する場合は、ベルモラの許可が必要です。ご自分で使うためにプログラムを変更すること、および差し替えたライブラリの不具合を調べるためにプログラムを解析することは、許可なく行えます。
このプログラムは現状のまま提供され、法律で認められる範囲でいかなる保証も行いません。変換したファイルは、使用する前に必ず確認してください。

2. Qtライブラリ
このプログラムは、Qt 5.15ライブラリ(Qt Core、Gui、Widgets、Network)を変更せず、動的にリンクして使用しています。Qtの著作権はThe Qt Company Ltd.およびその他の貢献者にあります。QtはGNU劣等一般公衆利用許諾書(LGPL)バージョン3に基づいて利用できます。許諾書の全文はインストール先フォルダのLGPL.TXTに、その許諾書の基となるGNU一般公衆利用許諾書(GPL)バージョン3の全文はGPL.TXTにあります。Qtライブラリは、利用者が別のバージョンに差し替えて使うことができます。languagesフォルダのファイルに含まれる標準のボタンとファイルのウィンドウの翻訳はQtのもので、Qt例外1.0の付いたGPLバージョン3に基づいて利用できます。Qtのソースコードは、Qtの配布元(https://www.qt.io またはお使いのオペレーティングシステムの配布元)から入手できます。

3. インストールパッケージ
Debian用のインストールパッケージは、CMakeに含まれるCPack(3条項BSDライセンス)で作成しています。CPackのコードは、プログラムにもパッケージにも含まれていません。Windows用は、インストールプログラムなしのフォルダとして提供します。

4. アイコン
プログラムのアイコンはすべて、このプログラムのためにベルモラが自ら描いたもので、プログラムと同じ条件で利用できます。ほかのアイコン集は使用していません。</translation>
    </message>
</context>
<context>
    <name>InputModeModel</name>
    <message>
        <source>Item</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>Ex %1</source>
        <translation>例 %1</translation>
    </message>
</context>
<context>
    <name>KeySelectDialog</name>
    <message>
        <source>항목매칭</source>
        <translation>項目の照合</translation>
    </message>
    <message>
        <source>매칭시 비교될 항목을 각각 선택해 주십시오</source>
        <translation>照合に使う項目をそれぞれ選択してください</translation>
    </message>
    <message>
        <source>기존데이터 항목</source>
        <translation>既存データの項目</translation>
    </message>
    <message>
        <source>기존데이터에서 매칭할 항목을 선택합니다.</source>
        <translation>既存データから照合する項目を選択します。</translation>
    </message>
    <message>
        <source>추가될 파일데이터 항목</source>
        <translation>追加するファイルの項目</translation>
    </message>
    <message>
        <source>추가한 파일에서 매칭할 항목을 선택합니다.</source>
        <translation>追加するファイルから照合する項目を選択します。</translation>
    </message>
    <message>
        <source>선택</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>선택된 항목들로 매칭하여 입력양식을 추가합니다</source>
        <translation>選択した項目で照合して入力フォーマットを追加します</translation>
    </message>
    <message>
        <source>취소</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>입력양식을 추가하지 않습니다</source>
        <translation>入力フォーマットを追加しません</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>쿼린 컨버터</source>
        <translation>クォリンコンバーター</translation>
    </message>
    <message>
        <source>입력</source>
        <translation>入力</translation>
    </message>
    <message>
        <source>입력파일:</source>
        <translation>入力ファイル:</translation>
    </message>
    <message>
        <source>입력파일</source>
        <translation>入力ファイル</translation>
    </message>
    <message>
        <source>입력파일을 추가합니다</source>
        <translation>入力ファイルを追加します</translation>
    </message>
    <message>
        <source>선택된 입력파일을 제외합니다</source>
        <translation>選択した入力ファイルを一覧から外します</translation>
    </message>
    <message>
        <source>출력</source>
        <translation>出力</translation>
    </message>
    <message>
        <source>변환설정:</source>
        <translation>変換設定:</translation>
    </message>
    <message>
        <source>변환설정</source>
        <translation>変換設定</translation>
    </message>
    <message>
        <source>변환에 사용할 설정을 선택합니다</source>
        <translation>変換に使用する設定を選択します</translation>
    </message>
    <message>
        <source>선택된 설정을 수정합니다</source>
        <translation>選択した設定を編集します</translation>
    </message>
    <message>
        <source>출력파일:</source>
        <translation>出力ファイル:</translation>
    </message>
    <message>
        <source>출력파일을 지정합니다</source>
        <translation>出力ファイルを指定します</translation>
    </message>
    <message>
        <source>파일을 변환합니다</source>
        <translation>ファイルを変換します</translation>
    </message>
    <message>
        <source>변환</source>
        <translation>変換</translation>
    </message>
    <message>
        <source>생성된 명세서를 출력합니다.</source>
        <translation>作成した明細書を開きます。</translation>
    </message>
    <message>
        <source>명세서
출력</source>
        <translation>明細書
印刷</translation>
    </message>
    <message>
        <source>출력파일이 생성된 폴더를 탐색합니다.</source>
        <translation>出力ファイルのあるフォルダを開きます。</translation>
    </message>
    <message>
        <source>출력폴더
열기</source>
        <translation>出力先を
開く</translation>
    </message>
    <message>
        <source>파일</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>환경설정</source>
        <translation>環境設定</translation>
    </message>
    <message>
        <source>정보</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>입력파일 추가</source>
        <translation>入力ファイルの追加</translation>
    </message>
    <message>
        <source>출력파일 지정</source>
        <translation>出力ファイルの指定</translation>
    </message>
    <message>
        <source>회사정보설정</source>
        <translation>会社情報の設定</translation>
    </message>
    <message>
        <source>회사정보를 설정합니다</source>
        <translation>会社情報を設定します</translation>
    </message>
    <message>
        <source>프로그램 종료</source>
        <translation>プログラムの終了</translation>
    </message>
    <message>
        <source>프로그램을 종료합니다</source>
        <translation>プログラムを終了します</translation>
    </message>
    <message>
        <source>쿼린컨버터 정보</source>
        <translation>クォリンコンバーターについて</translation>
    </message>
    <message>
        <source>쿼린컨버터 정보를 보여줍니다</source>
        <translation>クォリンコンバーターの情報を表示します</translation>
    </message>
    <message>
        <source>파일 변환</source>
        <translation>ファイルの変換</translation>
    </message>
    <message>
        <source>명세서 출력</source>
        <translation>明細書の印刷</translation>
    </message>
    <message>
        <source>도움말</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>도움말을 실행합니다</source>
        <translation>ヘルプを開きます</translation>
    </message>
    <message>
        <source>벨모라</source>
        <translation>ベルモラ</translation>
    </message>
    <message>
        <source>벨모라 홈페이지로 연결합니다</source>
        <translation>ベルモラのホームページを開きます</translation>
    </message>
    <message>
        <source>변환설정을 관리합니다</source>
        <translation>変換設定を管理します</translation>
    </message>
    <message>
        <source>Input Files</source>
        <translation>入力ファイル</translation>
    </message>
    <message>
        <source>CSV Files (*.csv);;All Files (*.*)</source>
        <translation>CSVファイル (*.csv);;すべてのファイル (*.*)</translation>
    </message>
    <message>
        <source>Output File</source>
        <translation>出力ファイル</translation>
    </message>
    <message>
        <source>CSV File (*.csv)</source>
        <translation>CSVファイル (*.csv)</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>An error has occurred</source>
        <translation>エラーが発生しました</translation>
    </message>
    <message>
        <source>There is newer version available.
Do you want to update now?
(Restart Quorin Converter is required.

Current version : %1
Latest version : %2</source>
        <translation>新しいバージョンがあります。
今すぐアップデートしますか?
(クォリンコンバーターの再起動が必要です。)

現在のバージョン : %1
最新のバージョン : %2</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>アップデートのお知らせ</translation>
    </message>
</context>
<context>
    <name>MergeDialog</name>
    <message>
        <source>병합 설정</source>
        <translation>結合設定</translation>
    </message>
    <message>
        <source>병합방식</source>
        <translation>結合方法</translation>
    </message>
    <message>
        <source>중복제거시 병합여부와 방식을 설정합니다</source>
        <translation>重複を削除するときの結合方法を設定します</translation>
    </message>
    <message>
        <source>병합 안함</source>
        <translation>結合しない</translation>
    </message>
    <message>
        <source>문자열 병합</source>
        <translation>文字列を結合</translation>
    </message>
    <message>
        <source>숫자열 합</source>
        <translation>数値を合計</translation>
    </message>
    <message>
        <source>연결자</source>
        <translation>区切り</translation>
    </message>
    <message>
        <source>문자열 병합시 항목사이에 추가될 연결자 유형을 선택합니다</source>
        <translation>値と値の間に入れる区切りの種類を選択します</translation>
    </message>
    <message>
        <source>문자</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>개행코드</source>
        <translation>改行コード</translation>
    </message>
    <message>
        <source>항목사이에 추가될 연결문자를 지정합니다</source>
        <translation>値と値の間に入れる区切り文字を指定します</translation>
    </message>
    <message>
        <source>LF(\n)</source>
        <translation>LF(\n)</translation>
    </message>
    <message>
        <source>LF개행 코드를 삽입합니다</source>
        <translation>改行コードLFを入れます</translation>
    </message>
    <message>
        <source>CRLF(\r\n)</source>
        <translation>CRLF(\r\n)</translation>
    </message>
    <message>
        <source>CRLF개행 코드를 삽입합니다</source>
        <translation>改行コードCRLFを入れます</translation>
    </message>
    <message>
        <source>확인</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>변경사항을 저장합니다</source>
        <translation>変更を保存します</translation>
    </message>
    <message>
        <source>취소</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>변경사항을 저장하지 않습니다</source>
        <translation>変更を保存しません</translation>
    </message>
    <message>
        <source>Select new line code.</source>
        <translation>改行コードを選択してください。</translation>
    </message>
</context>
<context>
    <name>OutputModeModel</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Double click to edit &apos;%1&apos;</source>
        <translation>ダブルクリックして「%1」の名前を変更します</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>出力内容</translation>
    </message>
    <message>
        <source>Double click to edit output items for &apos;%1&apos;</source>
        <translation>ダブルクリックして「%1」に出力する項目を編集します</translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation>条件</translation>
    </message>
    <message>
        <source>Double click to edit conditions for &apos;%1&apos;</source>
        <translation>ダブルクリックして「%1」の条件を編集します</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>ルール</translation>
    </message>
    <message>
        <source>Double click to edit rules for &apos;%1&apos;</source>
        <translation>ダブルクリックして「%1」のルールを編集します</translation>
    </message>
    <message>
        <source>Distinct</source>
        <translation>重複削除</translation>
    </message>
    <message>
        <source>Check to delete duplication for &apos;%1&apos;</source>
        <translation>チェックすると「%1」の重複を削除します</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>結合</translation>
    </message>
    <message>
        <source>Double click to edit merge option for &apos;%1&apos;</source>
        <translation>ダブルクリックして「%1」の結合設定を編集します</translation>
    </message>
</context>
<context>
    <name>PdfRuleDialog</name>
    <message>
        <source>규칙설정</source>
        <translation>ルール設定</translation>
    </message>
    <message>
        <source>규칙</source>
        <translation>ルール</translation>
    </message>
    <message>
        <source>설정된 규칙을 추가합니다</source>
        <translation>設定したルールを追加します</translation>
    </message>
    <message>
        <source>선택된 규칙을 삭제합니다</source>
        <translation>選択したルールを削除します</translation>
    </message>
    <message>
        <source>변경사항을 저장합니다</source>
        <translation>変更を保存します</translation>
    </message>
    <message>
        <source>변경사항을 저장하지 않습니다</source>
        <translation>変更を保存しません</translation>
    </message>
</context>
<context>
    <name>PdfSetModel</name>
    <message>
        <source>[Auto]</source>
        <translation>[自動]</translation>
    </message>
    <message>
        <source>Check to print &apos;%1&apos;</source>
        <translation>チェックすると「%1」を印刷します</translation>
    </message>
    <message>
        <source>Double click to edit output items for &apos;%1&apos;</source>
        <translation>ダブルクリックして「%1」に出力する項目を編集します</translation>
    </message>
    <message>
        <source>Double click to edit rules for &apos;%1&apos;</source>
        <translation>ダブルクリックして「%1」のルールを編集します</translation>
    </message>
    <message>
        <source>Cannot assign rules for &apos;%1&apos;</source>
        <translation>「%1」にはルールを設定できません</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>出力内容</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>ルール</translation>
    </message>
</context>
<context>
    <name>RuleDialog</name>
    <message>
        <source>규칙설정</source>
        <translation>ルール設定</translation>
    </message>
    <message>
        <source>병합 전 처리</source>
        <translation>結合前の処理</translation>
    </message>
    <message>
        <source>드래그하여 순서변경이 가능합니다</source>
        <translation>ドラッグして順番を変更できます</translation>
    </message>
    <message>
        <source>설정된 규칙을 병합 전 처리에 추가합니다</source>
        <translation>設定したルールを結合前の処理に追加します</translation>
    </message>
    <message>
        <source>선택된 병합 전 처리 규칙을 삭제합니다</source>
        <translation>選択した結合前のルールを削除します</translation>
    </message>
    <message>
        <source>선택된 규칙을 병합 후 처리로 이동합니다</source>
        <translation>選択したルールを結合後の処理に移動します</translation>
    </message>
    <message>
        <source>선택된 규칙을 병합 전 처리로 이동합니다</source>
        <translation>選択したルールを結合前の処理に移動します</translation>
    </message>
    <message>
        <source>병합 후 처리</source>
        <translation>結合後の処理</translation>
    </message>
    <message>
        <source>설정된 규칙을 병합 후 처리에 추가합니다</source>
        <translation>設定したルールを結合後の処理に追加します</translation>
    </message>
    <message>
        <source>선택된 병합 후 처리 규칙을 삭제합니다</source>
        <translation>選択した結合後のルールを削除します</translation>
    </message>
    <message>
        <source>변경사항을 저장합니다</source>
        <translation>変更を保存します</translation>
    </message>
    <message>
        <source>변경사항을 저장하지 않습니다</source>
        <translation>変更を保存しません</translation>
    </message>
</context>
<context>
    <name>RulePages</name>
    <message>
        <source>문자열 길이수정</source>
        <translation>文字列の長さ</translation>
    </message>
    <message>
        <source>길이변경을 시작할 위치를 선택합니다</source>
        <translation>長さを変える位置を選択します</translation>
    </message>
    <message>
        <source>처음부터</source>
        <translation>先頭から</translation>
    </message>
    <message>
        <source>끝에서</source>
        <translation>末尾から</translation>
    </message>
    <message>
        <source>변경할 길이를 지정합니다</source>
        <translation>文字数を指定します</translation>
    </message>
    <message>
        <source>자 만큼</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>설정된 길이를 처리할 방법을 선택합니다</source>
        <translation>指定した文字数をどう処理するかを選択します</translation>
    </message>
    <message>
        <source>남기기</source>
        <translation>だけ残す</translation>
    </message>
    <message>
        <source>잘라내기</source>
        <translation>を切り捨てる</translation>
    </message>
    <message>
        <source>개행</source>
        <translation>ごとに改行</translation>
    </message>
    <message>
        <source>개행코드 처리</source>
        <translation>改行コードの処理</translation>
    </message>
    <message>
        <source>LF(\n)</source>
        <translation>LF(\n)</translation>
    </message>
    <message>
        <source>모든 개행코드를 LF개행코드로 치환합니다</source>
        <translation>すべての改行コードをLFに置き換えます</translation>
    </message>
    <message>
        <source>CRLF(\r\n)</source>
        <translation>CRLF(\r\n)</translation>
    </message>
    <message>
        <source>모든 개행코드를 CRLF개행코드로 치환합니다</source>
        <translation>すべての改行コードをCRLFに置き換えます</translation>
    </message>
    <message>
        <source>없애기(한줄로)</source>
        <translation>削除(1行にする)</translation>
    </message>
    <message>
        <source>모든 개행코드를 없애고 한줄로 만듭니다</source>
        <translation>すべての改行コードを削除して1行にします</translation>
    </message>
    <message>
        <source>문자 삽입</source>
        <translation>文字の挿入</translation>
    </message>
    <message>
        <source>삽입위치</source>
        <translation>挿入位置</translation>
    </message>
    <message>
        <source>문자가 삽입될 위치를 선택합니다</source>
        <translation>文字を挿入する位置を選択します</translation>
    </message>
    <message>
        <source>처음</source>
        <translation>先頭</translation>
    </message>
    <message>
        <source>끝</source>
        <translation>末尾</translation>
    </message>
    <message>
        <source>삽입문자</source>
        <translation>挿入文字</translation>
    </message>
    <message>
        <source>삽입 될 문자를 지정합니다</source>
        <translation>挿入する文字を指定します</translation>
    </message>
    <message>
        <source>문자 추출/치환</source>
        <translation>文字の抽出/置換</translation>
    </message>
    <message>
        <source>검색</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>검색 할 문자를 지정합니다</source>
        <translation>検索する文字を指定します</translation>
    </message>
    <message>
        <source>검색 방법을 선택합니다</source>
        <translation>検索方法を選択します</translation>
    </message>
    <message>
        <source>과 일치</source>
        <translation>と一致する</translation>
    </message>
    <message>
        <source>과 불일치</source>
        <translation>と一致しない</translation>
    </message>
    <message>
        <source>을 포함</source>
        <translation>を含む</translation>
    </message>
    <message>
        <source>을 미포함</source>
        <translation>を含まない</translation>
    </message>
    <message>
        <source>으로 시작</source>
        <translation>で始まる</translation>
    </message>
    <message>
        <source>으로 시작하지 않음</source>
        <translation>で始まらない</translation>
    </message>
    <message>
        <source>으로 끝</source>
        <translation>で終わる</translation>
    </message>
    <message>
        <source>으로 끝나지 않음</source>
        <translation>で終わらない</translation>
    </message>
    <message>
        <source>처리 범위를 선택합니다</source>
        <translation>処理する範囲を選択します</translation>
    </message>
    <message>
        <source>전체열</source>
        <translation>文字列全体</translation>
    </message>
    <message>
        <source>일치문자만</source>
        <translation>一致部分のみ</translation>
    </message>
    <message>
        <source>처리 방법을 선택합니다</source>
        <translation>処理方法を選択します</translation>
    </message>
    <message>
        <source>추출</source>
        <translation>抽出</translation>
    </message>
    <message>
        <source>제외</source>
        <translation>除外</translation>
    </message>
    <message>
        <source>치환</source>
        <translation>置換</translation>
    </message>
    <message>
        <source>치환문자</source>
        <translation>置換文字</translation>
    </message>
    <message>
        <source>치환 할 문자열을 지정합니다</source>
        <translation>置き換え後の文字列を指定します</translation>
    </message>
    <message>
        <source>문자종류 변환</source>
        <translation>文字種の変換</translation>
    </message>
    <message>
        <source>소문자</source>
        <translation>小文字</translation>
    </message>
    <message>
        <source>모든 영문자를 소문자로 치환합니다</source>
        <translation>すべての英字を小文字に変換します</translation>
    </message>
    <message>
        <source>대문자</source>
        <translation>大文字</translation>
    </message>
    <message>
        <source>모든 영문자를 대문자로 치환합니다</source>
        <translation>すべての英字を大文字に変換します</translation>
    </message>
    <message>
        <source>전각문자</source>
        <translation>全角文字</translation>
    </message>
    <message>
        <source>모든 반각문자를 대응되는 전각문자로 치환합니다</source>
        <translation>半角文字を対応する全角文字に変換します</translation>
    </message>
    <message>
        <source>반각문자</source>
        <translation>半角文字</translation>
    </message>
    <message>
        <source>모든 전각문자를 대응되는 반각문자로 치환합니다</source>
        <translation>全角文字を対応する半角文字に変換します</translation>
    </message>
    <message>
        <source>히라가나</source>
        <translation>ひらがな</translation>
    </message>
    <message>
        <source>모든 카타가나문자를 히라가나문자로 치환합니다</source>
        <translation>すべてのカタカナをひらがなに変換します</translation>
    </message>
    <message>
        <source>카타가나</source>
        <translation>カタカナ</translation>
    </message>
    <message>
        <source>모든 히라가나문자를 카타가나문자로 치환합니다</source>
        <translation>すべてのひらがなをカタカナに変換します</translation>
    </message>
    <message>
        <source>공백제거</source>
        <translation>空白の削除</translation>
    </message>
    <message>
        <source>처음과 끝</source>
        <translation>先頭と末尾</translation>
    </message>
    <message>
        <source>문자열의 시작과 끝 부분의 공백을 제거합니다</source>
        <translation>文字列の先頭と末尾の空白を削除します</translation>
    </message>
    <message>
        <source>모든 공백</source>
        <translation>すべての空白</translation>
    </message>
    <message>
        <source>문자열 내의 모든 공백을 제거합니다</source>
        <translation>前後の空白を削除し、続く空白を1つにまとめます</translation>
    </message>
    <message>
        <source>Character &apos;,&apos; cannot be included.</source>
        <translation>カンマ(,)は使用できません。</translation>
    </message>
</context>
<context>
    <name>StatementFields</name>
    <message>
        <source>Name</source>
        <translation>お客様名</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>住所</translation>
    </message>
    <message>
        <source>Post code</source>
        <translation>郵便番号</translation>
    </message>
    <message>
        <source>Order number</source>
        <translation>注文番号</translation>
    </message>
    <message>
        <source>Order date</source>
        <translation>注文日</translation>
    </message>
    <message>
        <source>Product name</source>
        <translation>商品名</translation>
    </message>
    <message>
        <source>Product number</source>
        <translation>商品番号</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>Unit price</source>
        <translation>単価</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>小計</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>商品合計</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>消費税</translation>
    </message>
    <message>
        <source>Shipping charge</source>
        <translation>送料</translation>
    </message>
    <message>
        <source>C.O.D charge</source>
        <translation>代引手数料</translation>
    </message>
    <message>
        <source>Total sum</source>
        <translation>総合計</translation>
    </message>
    <message>
        <source>Coupon</source>
        <translation>クーポン</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>ポイント</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>お支払金額</translation>
    </message>
</context>
<context>
    <name>StatementHtml</name>
    <message>
        <source>Sum</source>
        <translation>商品合計</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>消費税</translation>
    </message>
    <message>
        <source>Shipping Charge</source>
        <translation>送料</translation>
    </message>
    <message>
        <source>C.O.D Charge</source>
        <translation>代引手数料</translation>
    </message>
    <message>
        <source>Total Sum</source>
        <translation>総合計</translation>
    </message>
    <message>
        <source>Coupon</source>
        <translation>クーポン</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>ポイント</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>お支払金額</translation>
    </message>
    <message>
        <source>Order Detail</source>
        <translation>ご注文内容</translation>
    </message>
    <message>
        <source>Order Number</source>
        <translation>ご注文番号</translation>
    </message>
    <message>
        <source>Order Date</source>
        <translation>ご注文日</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>商品名</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>Unit Price</source>
        <translation>単価</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>小計</translation>
    </message>
</context>
</TS>
