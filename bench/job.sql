-- The job of quorinBench for sqlite3: same input, same output bytes. An order without items stays,
-- rows with the same order number are one row at the place of the first, its items in file order.
.import --csv orders.csv orders
.import --csv items.csv items
-- Without this index sqlite3 makes one of its own for the join; with it, it is a little faster.
--indexed create index items_by_order on items("주문번호");
.mode list
.headers off
.output sqlite3.csv
select '주문번호,주문일,받는사람,전화,우편번호와 주소,메시지,카드금액,상품,상품코드,수량';
with joined as (
    select o.rowid as order_row, i.rowid as item_row, o."주문번호" as number,
        substr(o."주문일시", 1, 10) as day, o."수령인" || '님' as recipient,
        replace(o."휴대전화", '-', '') as phone, o."우편번호" || ' ' || o."주소" as address,
        case when o."배송메시지" <> '' then trim(o."배송메시지") else '' end as message,
        case when o."결제수단" = '카드' and cast(o."결제금액" as integer) >= 50000
            then o."결제금액" else '' end as card,
        upper(i."상품명" || '/' || i."옵션") as goods, i."상품코드" as code, i."수량" as quantity
    from orders o left join items i on i."주문번호" = o."주문번호"
    order by order_row, item_row)
select number || ',' || day || ',' || recipient || ',' || phone || ',' || address || ','
    || message || ',' || card || ',' || group_concat(goods, '; ') || ','
    || group_concat(code, ' ') || ',' || sum(quantity)
from joined group by number order by min(order_row);
