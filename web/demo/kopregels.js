// What the host says of a column in one line.

const TERMIJNEN = new Map([[1, 'per maand'], [3, 'per kwartaal'], [6, 'per half jaar'], [12, 'per jaar'], [99, 'eenmalig']]);
const PERCENTAGES = 2;
const bedragen = new Intl.NumberFormat('nl-NL', { minimumFractionDigits: 2, maximumFractionDigits: 2 });

function onderwerp({ Omschrijving, IsProduct, ProductsoortOmschrijving, Productnaam }) {
  const soort = IsProduct ? ProductsoortOmschrijving : '';
  const naam = Omschrijving === '' && IsProduct ? Productnaam : Omschrijving;
  return [...new Set([soort, naam])].filter((deel) => deel !== '').join(' · ') || 'Vrije kolom';
}

export function kopregel(kolom) {
  const getal = bedragen.format(kolom.Bedrag.Bedrag);
  const bedrag = kolom.Bedrag.Invoersoort === PERCENTAGES ? `${getal} %` : `€ ${getal}`;
  return `${onderwerp(kolom)} · ${bedrag} ${TERMIJNEN.get(kolom.Termijn) ?? ''}`.trimEnd();
}
